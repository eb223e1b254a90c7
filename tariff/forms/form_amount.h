// frmGEN_UNOIMPORTI: one amount for a class and category.
#pragma once

#include "dialogs/form.h"
#include "shell/state/run_state.h"

namespace orm {

class FrmGenUnoImporti : public Form {
 public:
  // `titolo` of the window and `riquadro`, the caption of the frame around the amount; the two
  // labels and their values are the caller's to fill, and hidden while their value is empty.
  FrmGenUnoImporti(RunState& stato, std::string titolo, std::string riquadro, double importo);

  double Importo() const;
  void SetTariffa(std::string etichetta, std::string valore);
  void SetClasseCategoria(std::string etichetta, std::string valore);

  TestoBox Label1, Label2;  // "TARIFFA", "CLASSE/CATEGORIA"
  Frame Frame1;
  FloatBox FloatBox1;
  InterBox InterBox1;
  Image Image1;
  Button cmdOK;

 private:
  RunState& stato_;
};

}  // namespace orm
