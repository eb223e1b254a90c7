// frmGEN_UNOIMPORTI and frmPDL_Importi: one amount, and the amounts of a lot or of a lot in one
// period.
#pragma once

#include <array>

#include "tariff/forms/amount_box.h"
#include "tariff/forms/input_form.h"

namespace orm {

class FrmGenUnoImporti : public FormInput {
 public:
  // `titolo` of the window and `riquadro`, the caption of the frame around the amount, which is
  // taken when it is confirmed, unless its sum is refused. The two labels and their values are the
  // caller's to fill, and hidden while their value is empty.
  FrmGenUnoImporti(RunState& stato, std::string titolo, std::string riquadro,
                   const ImportoChiesto& importo);

  void SetTariffa(std::string etichetta, std::string valore);
  void SetClasseCategoria(std::string etichetta, std::string valore);

  TestoBox Label1{*this, "Label1", "TARIFFA", {.readOnly = true}};
  TestoBox Label2{*this, "Label2", "CLASSE/CATEGORIA", {.readOnly = true}};
  Frame Frame1{*this, "Frame"};
  ImportoBox importo{*this, stato_, "FloatBox1", "InterBox1", "", kLavori};
  MarchioEuro Image1{*this, stato_};
  Button cmdOK{*this, "cmdOK", "&O.K.", Button::Role::Default};
};

// Works and expropriations of the design, additional works and expropriations of the variations,
// works supervised: in this order. A case leaves out what it does not ask.
using ImportiPdl = std::array<ImportoChiesto, 5>;

class FrmPdlImporti : public FormInput {
 public:
  // The amounts are taken when they are confirmed; a sum that the report has no room for is
  // refused.
  FrmPdlImporti(RunState& stato, std::string titolo, const ImportiPdl& importi);

  MarchioEuro Image1{*this, stato_};
  Frame Frame1{*this, "Frame1", "PROGETTAZIONE"};
  Frame Frame2{*this, "Frame2", "PERIZIE"};
  Frame Frame3{*this, "Frame3", "DIREZIONE LAVORI"};
  std::array<ImportoBox, 5> importo{{{*this, stato_, "Importo1", "IMPORTO LAVORI", kLavoriConSegno},
                                     {*this, stato_, "Importo2", "ESPROPRI"},
                                     {*this, stato_, "Importo3", "IMPORTO LAVORI SUPPLETIVI"},
                                     {*this, stato_, "Importo4", "ESPROPRI  IN  PERIZIE"},
                                     {*this, stato_, "Importo5", "IMPORTO ", kLavoriConSegno}}};
  Label lblNota{*this, "lblNota", "Negativo per escluderlo dal calcolo dell'onorario",
                Label::Style::Note};
  Button Command1{*this, "Command1", "&O.K.", Button::Role::Default};
};

}  // namespace orm
