// frmVER_FLESS_C1: bending of circular and annular sections.
#pragma once

#include "structures/sections/form_bending.h"
#include "structures/solvers/section_circular.h"

namespace orm {

struct FormaC;

class FrmVerFlessC1 : public FormFlessione {
 public:
  explicit FrmVerFlessC1(RunState& stato);

  FloatBox CD_02{*this, "CD_02", "Raggio esterno sezione [cm.]", kLunghezza};
  FloatBox CD_03{*this, "CD_03", "Raggio interno sezione[cm.]", kLunghezza};
  Frame fraDistribuita{*this, "fraDistribuita", "ARMATURA DISTRIBUITA SU CIRCONFERENZA"};
  PannelloArmature anelli{*this, 1, {"1", "2"}, "", "Raggio  [cm.]"};
  Frame fraConcentrata{*this, "fraConcentrata", "ARMATURA CONCENTRATA"};
  PannelloArmature gruppi{*this, 3, {"1", "2"}, "", "Distanza dal bordo superiore  [cm.]"};

 private:
  void ScegliForma(std::size_t forma) override;
  void Calcola() override;
  void ScriviDati();
  DatiCircolare LeggiDati() const;

  const FormaC* forma_ = nullptr;  // the chosen one
  RisultatiCircolare tensioni_;    // lives with the dialog, as some of it outlives a calculation
};

void MostraVerFlessC1(RunState& stato);

}  // namespace orm
