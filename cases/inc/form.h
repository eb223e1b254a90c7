// frmINC_Dati and frmINC_Prestazioni: period and certificate of a chief engineer's note, and the
// services of a lot. What they show is taken when it is confirmed.
#pragma once

#include <array>

#include "cases/inc/config.h"
#include "cases/inc/data.h"
#include "tariff/forms/form_period.h"
#include "tariff/forms/service_boxes.h"

namespace orm {

class FrmIncDati : public Form {
 public:
  // `massimoCompensi`: percent, a note of the form.
  FrmIncDati(DatiInc& dati, double massimoCompensi);

  Frame Frame1{*this, "Frame1", "PRESTAZIONE ESEGUITA NEL PERIODO DI VALIDITA' DEL"};
  ElencoDecreti Decreti{*this};
  Frame Frame2{*this, "Frame2", "CERTIFICATO DI REGOLARE ESECUZIONE CONFERMATO"};
  OptionGroup certificato;
  OptionButton Option1{*this, "Option1", "SI", certificato};
  OptionButton Option2{*this, "Option2", "NO", certificato};
  Label lblCompensi{*this, "lblCompensi", "", Label::Style::Note};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

class FrmIncPrestazioni : public Form {
 public:
  // `quote`: what of each aliquot is the chief engineer's.
  FrmIncPrestazioni(const QuoteInc& quote, LottoInc& lotto);

  std::array<CheckBox, 3> Check{{{*this, "Check1", "g - DIREZIONE LAVORI ( quota )"},
                                 {*this, "Check2", "i - ASSISTENZA AL COLLAUDO"},
                                 {*this, "Check3", "l - LIQUIDAZIONE"}}};
  AliquoteServizi aliquote{*this};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

}  // namespace orm
