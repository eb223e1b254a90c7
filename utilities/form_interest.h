// The dialog of interest on late payment.
#pragma once

#include "dialogs/data_forms/explanations.h"
#include "shell/state/run_state.h"
#include "utilities/interest_rates.h"

namespace orm {

// Reads the table of rates, then shows the dialog; nothing is saved.
void MostraInteressiMora(RunState& stato);

class FrmUtiIntereMora : public Form {
  RunState& stato_;  // before the button that needs it

 public:
  FrmUtiIntereMora(RunState& stato, TabellaTus tabella);

  InterBox casellainteri1{*this, "casellainteri1", "ONORARIO"};
  DatePicker DTPicker1;
  DatePicker DTPicker2;
  Frame fraInteresse{*this, "fraInteresse", "INTERESSE"};
  OptionGroup interesse;
  OptionButton Option1{*this, "Option1", "SEMPLICE", interesse};
  OptionButton Option2{*this, "Option2", "COMPOSTO", interesse};
  TestoBox Text3{
      *this, "Text3", "GIORNI di RITARDO", {.readOnly = true, .width = 20, .figure = true}};
  TestoBox Text4{
      *this, "Text4", "TASSO", {.readOnly = true, .width = 20, .unit = "%", .figure = true}};
  TestoBox Text5{
      *this, "Text5", "INTERESSI DI MORA", {.readOnly = true, .width = 20, .figure = true}};
  Button Command1{*this, "Command1", "&CALCOLA", Button::Role::Default};
  PulsanteSpiega cmdSPIEGA{*this, stato_.player};
  Button Command2{*this, "Command2", "&ESCI", Button::Role::Close};

 private:
  void Calcola();
  void SvuotaRisultati();

  TabellaTus tabella_;
};

}  // namespace orm
