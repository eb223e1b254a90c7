// frmSTC_Dati: the data of a condition survey.
#pragma once

#include "cases/stc/data.h"
#include "dialogs/form.h"
#include "tariff/config/price_index.h"

namespace orm {

class FrmStcDati : public Form {
 public:
  // A month that `indici` cannot answer is told below its date; the calculation would fail there.
  FrmStcDati(DatiStc& dati, const IndiciFoi& indici);

  // As much of each as the report has room for, with everything else at its greatest.
  static inline const NumberLimits kNumero{.most = 99999, .decimals = 0};
  static inline const NumberLimits kArea{.most = 99999999, .decimals = 0, .unit = "metri quadri"};
  static inline const NumberLimits kVolume{.most = 99999999, .decimals = 0, .unit = "metri cubi"};
  InterBox casellainteri1{*this, "casellainteri1", "SUPERFICIE INTERESSATA DALL'INCARICO", kArea};
  InterBox casellainteri2{*this, "casellainteri2", "Numero delle PARTITE", kNumero};
  InterBox casellainteri3{*this, "casellainteri3", "Numero dei MAPPALI", kNumero};
  CheckBox Check1{*this, "Check1", "Maggiorazione per fronti stradali in allargamento"};
  InterBox casellainteri4{*this, "casellainteri4", "COSTRUZIONI ADIBITE AD ABITAZIONI OD UFFICI",
                          kVolume};
  InterBox casellainteri5{*this, "casellainteri5", "COSTRUZIONI ADIBITE AD USO AGRICOLO", kArea};
  DatePicker DTPicker1{*this, "DTPicker1", "DATA DI ESPLETAMENTO DELLA PRESTAZIONE"};
  Label lblGiorno{*this, "lblGiorno", "( il giorno è ininfluente)", Label::Style::Note};
  Label lblIndici{*this, "lblIndici", "", Label::Style::Warning};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void CercaIndici();
  void Conferma();
  DatiStc& dati_;
  const IndiciFoi& indici_;
};

}  // namespace orm
