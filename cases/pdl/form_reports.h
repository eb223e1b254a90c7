// frmPDL_Perizie and frmPDL_ImpPer: how many variation reports a row has, and the amounts of each.
#pragma once

#include <array>

#include "cases/pdl/data.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmPdlPerizie : public FormInput {
 public:
  // `numero`, 0 to 10, is taken when it is confirmed.
  FrmPdlPerizie(RunState& stato, std::int16_t& numero);

  // More than a row takes, so that the refusal can say how many it takes.
  InterBox ciNumeroPerizie{*this,
                           "ciNumeroPerizie",
                           "NUMERO  PERIZIE NEL PERIODO TARIFFARIO",
                           {.most = 99, .decimals = 0}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void Conferma();
  std::int16_t& numero_;
};

class FrmPdlImpPer : public FormInput {
 public:
  // `perizia` is taken when it is confirmed; `altre`: the other reports of the note.
  FrmPdlImpPer(RunState& stato, PeriziaPdl& perizia, const std::vector<PeriziaPdl>& altre);

  Frame Frame1{*this, "Frame1", "TIPO DI PERIZIA"};
  ComboBox Combo1{*this, "Combo1", "", {"1 - di variante e suppletiva", "2 - di assestamento!"}};
  MarchioEuro Image1{*this, stato_};
  std::array<ImportoBox, 3> importo{{{*this, stato_, "Importo1", "IMPORTO LAVORI SUPPLETIVI"},
                                     {*this, stato_, "Importo2", "IMPORTO ESPROPRI IN PERIZIA"},
                                     {*this, stato_, "Importo3", "IMPORTO LAVORI VARIATI"}}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

}  // namespace orm
