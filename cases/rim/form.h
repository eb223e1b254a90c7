// frmRIM_Dati and frmRIM_Elaborato: the surcharges of a survey of buildings, and its drawings. What
// they show is taken when it is confirmed.
#pragma once

#include "cases/rim/data.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmRimDati : public Form {
 public:
  explicit FrmRimDati(DatiRim& dati);

  Frame Frame1{*this, "Frame1", "MAGGIORAZIONI ( 30 % ciascuna, sommate )"};
  CheckBox Check1{*this, "Check1", "RILIEVO DELLE STRUTTURE"};
  CheckBox Check2{*this, "Check2", "IMPIANTI TECNICI COMPLESSI"};
  CheckBox Check3{*this, "Check3", "EDIFICIO VINCOLATO"};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

class FrmRimElaborato : public FormRiga {
 public:
  FrmRimElaborato(RunState& stato, const PostoRiga& posto, ElaboratoRim& elaborato);

  Label Label1{*this, "Label1", "", Label::Style::Title};
  ComboBox comTipo{*this, "comTipo", "TIPO"};
  ComboBox comScala{*this, "comScala", "SCALA", {kScaleRim.begin(), kScaleRim.end()}};
  FloatBox cdQuantita{*this, "cdQuantita", "SUPERFICIE [mq]", {.most = 999999, .decimals = 5}};
  Label lblTariffa{*this, "lblTariffa", "", Label::Style::Note};
  InterBox ciNumero{*this, "ciNumero", "NUMERO DEI PIANI", {.most = 32767, .decimals = 0}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
  Button Command2{*this, "Command2", "&FINE INPUT ELABORATI"};

 private:
  ElaboratoRim Mostrato() const;
  void MostraCampiDelTipo();
  void Conferma();
  ElaboratoRim& elaborato_;
};

}  // namespace orm
