// frmVER_FLESS_T1: bending of rectangular, T, inverted T and double T sections.
#pragma once

#include "structures/sections/form_bending.h"
#include "structures/sections/shapes_t.h"
#include "structures/solvers/section_t.h"

namespace orm {

class FrmVerFlessT1 : public FormFlessione {
 public:
  explicit FrmVerFlessT1(RunState& stato);

  FloatBox CD_02{*this, "CD_02", "Larghezza ala superiore [cm.]", kLunghezza};
  FloatBox CD_03{*this, "CD_03", kSpessoreAnima, kLunghezza};
  FloatBox CD_04{*this, "CD_04", "Larghezza ala inferiore [cm.]", kLunghezza};
  FloatBox CD_05{*this, "CD_05", "Altezza totale [cm.]", kLunghezza};
  FloatBox CD_06{*this, "CD_06", "Spessore ala superiore [cm.]", kLunghezza};
  FloatBox CD_07{*this, "CD_07", "Spessore ala inferiore [cm.]", kLunghezza};
  PannelloArmature strati{*this,
                          1,
                          {"1", "2", "3", "4", "5", "6", "7", "8"},
                          "STRATO",
                          "Distanza dal bordo superiore  [cm.]"};

 private:
  void ScegliForma(std::size_t forma) override;
  void Calcola() override;
  void MostraCampi();
  void ScriviDati();
  DatiSezione LeggiDati() const;

  const FormaT* forma_ = nullptr;  // the chosen one
  RisultatiSezione tensioni_;      // lives with the dialog, as some of it outlives a calculation
};

void MostraVerFlessT1(RunState& stato);

}  // namespace orm
