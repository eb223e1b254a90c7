// frmRPA_Dati and frmRPA_Terreno: hours and parcels of a survey of lands, and its lands. What they
// show is taken when it is confirmed.
#pragma once

#include <array>

#include "cases/rpa/data.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmRpaDati : public Form {
 public:
  explicit FrmRpaDati(DatiRpa& dati);

  static inline const NumberLimits kOre{.most = 999999, .decimals = 5};
  static inline const NumberLimits kParticelle{.most = 999999, .decimals = 0};
  Frame Frame1{*this, "Frame1", "OPERAZIONI DI CAMPAGNA ( a vacazione, ore )"};
  std::array<FloatBox, 3> cdOre{{{*this, "cdOre(0)", kOreRpa[0], kOre},
                                 {*this, "cdOre(1)", kOreRpa[1], kOre},
                                 {*this, "cdOre(2)", kOreRpa[2], kOre}}};
  Frame Frame2{*this, "Frame2", "PARTICELLE CON CONFINI E COLTURE"};
  std::array<InterBox, 2> ciParticelle{
      {{*this, "ciParticelle(0)", "INFERIORI A 500 mq", kParticelle},
       {*this, "ciParticelle(1)", "OLTRE 500 mq", kParticelle}}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void Conferma();
  DatiRpa& dati_;
};

class FrmRpaTerreno : public FormRiga {
 public:
  FrmRpaTerreno(RunState& stato, const PostoRiga& posto, TerrenoRpa& terreno);

  Label Label1{*this, "Label1", "", Label::Style::Title};
  ComboBox comTerreno{*this, "comTerreno", "TERRENI", {kTerreniRpa.begin(), kTerreniRpa.end()}};
  ComboBox comGiacitura{
      *this, "comGiacitura", "GIACITURA", {kGiacitureRpa.begin(), kGiacitureRpa.end()}};
  ComboBox comScala{*this, "comScala", "SCALA", {kScaleRpa.begin(), kScaleRpa.end()}};
  FloatBox cdEttari{*this, "cdEttari", "ESTENSIONE [ettari]", {.most = 999999, .decimals = 5}};
  Label lblTariffa{*this, "lblTariffa", "", Label::Style::Note};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
  Button Command2{*this, "Command2", "&FINE INPUT TERRENI"};

 private:
  TerrenoRpa Mostrato() const;
  void MostraTariffa();
  void Conferma();
  TerrenoRpa& terreno_;
};

}  // namespace orm
