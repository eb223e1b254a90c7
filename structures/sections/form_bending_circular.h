// frmVER_FLESS_C1: bending of circular and annular sections.
#pragma once

#include "dialogs/lavagna.h"
#include "shell/state/run_state.h"
#include "structures/resumable_form.h"
#include "structures/sections/form_bending.h"
#include "structures/solvers/section_circular.h"

namespace orm {

struct FormaC;

class FrmVerFlessC1 : public FormRiprendibile {
 public:
  explicit FrmVerFlessC1(RunState& stato);
  void OnOpen() override;

  PannelloForme forme;
  PannelloCarichi carichi;
  Frame fraGeometria;
  FloatBox CD_02, CD_03;
  Frame fraArmature, fraDistribuita;
  PannelloArmature anelli;  // CasellaFerri(1), (2)
  Frame fraConcentrata;
  PannelloArmature gruppi;  // CasellaFerri(3), (4)
  PannelloRisultati risultati;
  orm::Lavagna Lavagna;
  Button ComCalcola, ComEsci;

 private:
  void Arrange();
  void TieEvents();
  void ScegliForma(const FormaC& scelta);
  void ScriviEsempio();
  DatiCircolare LeggiDati() const;
  void Calcola();
  void MostraRisultati(const DatiCircolare& dati);

  RunState& stato_;
  const FormaC* forma_ = nullptr;  // the chosen one
  RisultatiCircolare tensioni_{};  // lives with the dialog, as some elements outlive a calculation
};

void MostraVerFlessC1(RunState& stato);

}  // namespace orm
