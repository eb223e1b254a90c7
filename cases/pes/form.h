// frmPES_Dati: a good that was estimated.
#pragma once

#include "cases/pes/data.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmPesDati : public FormRiga {
 public:
  // `altri`: the goods of the note entered before. `bene` is taken when it is confirmed.
  FrmPesDati(RunState& stato, const PostoRiga& posto, BenePes& bene,
             const std::vector<BenePes>& altri);

  Label Label1{*this, "Label1", "", Label::Style::Title};
  TestoBox txtDescrizione{
      *this, "txtDescrizione", "DESCRIZIONE DEL BENE", {.longest = 44, .width = 44}};
  ImportoBox valore{*this, stato_, "Valore", "VALORE STIMATO"};
  MarchioEuro Image1{*this, stato_};
  // Table F is not in the program.
  FloatBox cdPercentuale{*this,
                         "cdPercentuale",
                         "PERCENTUALE DELLA TABELLA F",
                         {.most = 100, .decimals = 5, .unit = "%"}};
  Label lblTabellaF{*this, "lblTabellaF", "da leggere nella tariffa, per il valore stimato",
                    Label::Style::Note};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
  Button Command2{*this, "Command2", "&FINE INPUT BENI"};

 private:
  void Conferma();
  BenePes& bene_;
};

}  // namespace orm
