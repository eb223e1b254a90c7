// frmPDL_Perizie and frmPDL_ImpPer: how many variation reports a row has, and the amounts of each.
#pragma once

#include <array>

#include "cases/pdl/data.h"
#include "dialogs/form.h"
#include "shell/state/run_state.h"
#include "tariff/forms/amount_box.h"

namespace orm {

class FrmPdlPerizie : public Form {
 public:
  FrmPdlPerizie(Player& player, std::string dove, std::int16_t numero);
  std::int16_t NumeroPerizie;  // 0 to 10; as given when the form was left by its window

  Label lblLotto;
  InterBox ciNumeroPerizie;
  Button Command1;

 private:
  void Confirm(Player& player);
};

// Additional works, expropriations, works varied.
using ImportiPerizia = std::array<double, 3>;

class FrmPdlImpPer : public Form {
 public:
  // `altri`: what the note's other reports hold of each amount.
  FrmPdlImpPer(RunState& stato, std::string dove, const PeriziaPdl& perizia,
               const ImportiPerizia& altri);
  PeriziaPdl Perizia;  // as given when the form was left by its window

  Label lblLotto;
  Frame Frame1;
  ComboBox Combo1;
  Image Image1;
  std::array<ImportoBox, 3> importo;
  Button Command1;

 private:
  void Confirm(RunState& stato, const ImportiPerizia& altri);
};

}  // namespace orm
