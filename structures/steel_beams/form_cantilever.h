// frmVER_SBALZI_P: check of a cantilever of NP beams and hollow tiles.
#pragma once

#include "shell/state/run_state.h"
#include "structures/resumable_form.h"
#include "structures/steel_beams/cantilever.h"
#include "structures/steel_beams/panel_inputs.h"
#include "structures/steel_beams/panel_results.h"

namespace orm {

class FrmVerSbalziP : public FormRiprendibile {
 public:
  explicit FrmVerSbalziP(RunState& stato);

  IngressiPutrelle ingressi;
  Frame fraEstremita;
  std::array<FloatBox, 2> cdCE;  // load, couple
  Button cmdCarico, cmdCOPPIA;
  Frame fraZona;
  OptionGroup gruppoZona;
  OptionButton Option1, Option2;
  Button cmdCAR_SISMICHE;
  RisultatiPutrelle risultati;
  Button comCalcola, cmdSTAMPA, ComEsci;

 private:
  void TieEvents();
  void Azzera();
  DatiSbalzoP Leggi() const;
  void Calcola();
  void Stampa();

  RunState& stato_;
  // Of the check that is shown.
  DatiSbalzoP dati_;
  VerificaPutrella verifica_;
};

void MostraSbalziP(RunState& stato);

}  // namespace orm
