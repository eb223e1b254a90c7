// The dialogs of geotechnical services: subclass, period, amounts and services of a row. What they
// show is taken when it is confirmed.
#pragma once

#include <array>

#include "cases/geo/config.h"
#include "cases/geo/data.h"
#include "tariff/forms/form_period.h"
#include "tariff/forms/input_form.h"
#include "tariff/forms/service_boxes.h"
#include "tariff/law/table_geotechnics.h"

namespace orm {

inline constexpr NomeRiga kGruppo = {"gruppo", "il gruppo", "i gruppi"};

class FrmGeoClassi : public FormRiga {
 public:
  FrmGeoClassi(RunState& stato, const PostoRiga& posto, std::string& sottoclasse);

  Label Label1{*this, "Label1", "", Label::Style::Title};
  Frame Frame1{*this, "Frame1", "SOTTOCLASSI"};
  OptionGroup tipo;
  std::array<OptionButton, kSottoclassiGeo> Option{
      {{*this, "Option1", kSottoclassiGeotecniche[0], tipo},
       {*this, "Option2", kSottoclassiGeotecniche[1], tipo},
       {*this, "Option3", kSottoclassiGeotecniche[2], tipo},
       {*this, "Option4", kSottoclassiGeotecniche[3], tipo}}};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
  Button Command2{*this, "Command2", "FINE INPUT SOTTOCLASSI"};
};

// frmGEO_Tariffe: the periods that GEO.CFG names.
TestiTariffe TestiGeoTariffe(const TabelleGeo& tabelle);

class FrmGeoImporti : public FormInput {
 public:
  // `tipo`: kind of fee note, which names the works supervised.
  FrmGeoImporti(RunState& stato, const std::string& tipo, std::string periodo,
                const ImportoChiesto& progetto, const ImportoChiesto& direzione);

  Frame Frame1{*this, "Frame1", "Importi nel Periodo Tariffario"};
  Label Label6{*this, "Label6", "", Label::Style::Title};
  MarchioEuro Image1{*this, stato_};
  Frame Frame2{*this, "Frame2", "PROGETTAZIONE"};
  Frame Frame3{*this, "Frame3", "DIREZIONE LAVORI"};
  std::array<ImportoBox, 2> importo{
      {{*this, stato_, "Importo1", "Importo a base d'asta dei Lavori di progetto", kLavoriConSegno},
       {*this, stato_, "Importo2", "Importo dei Lavori diretti", kLavoriConSegno}}};
  Label lblProgettazione{*this, "lblProgettazione", "VALE LA DATA DI ESPLETAMENTO DELL'INCARICO",
                         Label::Style::Note};
  Label lblDirezione{*this, "lblDirezione", "VALE LA DATA DI EMISSIONE DEL S.A.L.",
                     Label::Style::Note};
  Label lblNegativo{*this, "lblNegativo", "Negativo per escluderlo dal calcolo dell'onorario",
                    Label::Style::Note};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

class FrmGeoPrestazio : public Form {
 public:
  explicit FrmGeoPrestazio(RigaGeo& riga);

  Frame Frame1{*this, "Frame1", "PRESTAZIONI"};
  OptionGroup tipo;
  OptionButton Option1{*this, "Option1", "COMPLETE", tipo};
  OptionButton Option2{*this, "Option2", "PARZIALI", tipo};
  Frame Frame2{*this, "Frame2", "PRESTAZIONI "};
  std::array<CheckBox, 6> Check{{{*this, "Check1", kPrestazioniGeo[0]},
                                 {*this, "Check2", kPrestazioniGeo[1]},
                                 {*this, "Check3", kPrestazioniGeo[2]},
                                 {*this, "Check4", kPrestazioniGeo[3]},
                                 {*this, "Check5", kPrestazioniGeo[4]},
                                 {*this, "Check6", kPrestazioniGeo[5]}}};
  AliquoteServizi aliquote{*this};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};

 private:
  void Conferma();
  RigaGeo& riga_;
};

}  // namespace orm
