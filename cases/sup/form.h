// frmSUP_Attivita: an activity of support.
#pragma once

#include "cases/sup/data.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmSupAttivita : public FormRiga {
 public:
  // `attivita` is taken when it is confirmed.
  FrmSupAttivita(RunState& stato, const PostoRiga& posto, AttivitaSup& attivita);

  Label Label1{*this, "Label1", "", Label::Style::Title};
  TestoBox txtAttivita{*this, "txtAttivita", "DESCRIZIONE", {.longest = 44, .width = 44}};
  // Table B6 is not in the program.
  FloatBox cdAliquota{*this, "cdAliquota", "ALIQUOTA DELLA TABELLA B6", {.most = 1, .decimals = 5}};
  Label lblTabellaB6{*this, "lblTabellaB6", "da leggere nel decreto", Label::Style::Note};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
  Button Command2{*this, "Command2", "&FINE INPUT ATTIVITÀ"};

 private:
  void Conferma();
  AttivitaSup& attivita_;
};

}  // namespace orm
