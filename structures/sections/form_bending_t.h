// frmVER_FLESS_T1: bending of rectangular, T, inverted T and double T sections.
#pragma once

#include "dialogs/lavagna.h"
#include "shell/state/run_state.h"
#include "structures/resumable_form.h"
#include "structures/sections/form_bending.h"
#include "structures/sections/shapes_t.h"
#include "structures/solvers/section_t.h"

namespace orm {

class FrmVerFlessT1 : public FormRiprendibile {
 public:
  explicit FrmVerFlessT1(RunState& stato);
  void OnOpen() override;

  PannelloForme forme;
  PannelloCarichi carichi;
  Frame fraGeometria;
  FloatBox CD_02, CD_03, CD_04, CD_05, CD_06, CD_07;
  Frame fraArmature;
  PannelloArmature strati;
  PannelloRisultati risultati;
  orm::Lavagna Lavagna;
  Button ComCalcola, ComEsci;

 private:
  void Arrange();
  void TieEvents();
  void ScegliForma(const FormaT& scelta);
  void MostraCampi();
  void ScriviEsempio();
  DatiSezione LeggiDati() const;
  void Calcola();
  void MostraRisultati(const DatiSezione& dati);

  RunState& stato_;
  const FormaT* forma_ = nullptr;  // the chosen one
  RisultatiSezione tensioni_{};    // lives with the dialog, as some elements outlive a calculation
};

void MostraVerFlessT1(RunState& stato);

}  // namespace orm
