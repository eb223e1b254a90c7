// frmPDL_Tariffe: the tariff period of a row of a lot.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class FrmPdlTariffe : public Form {
 public:
  // Periods of a lot only go forward: those up to `ultimo`, the last one used, are not offered.
  // `periodo` is chosen at first, or the first one offered. `esiste`: the row is there already, and
  // leaving the form by its window keeps it; otherwise it ends the periods.
  FrmPdlTariffe(Player& player, std::string dove, int ultimo, const std::string& periodo,
                bool esiste);

  // When not empty, why no further row can be entered: shown instead of taking the period.
  std::string Rifiuto;
  std::string Tariffa;  // "1" to "5", "0" at the end of the periods

  Label lblLotto;
  Frame Frame1;
  OptionGroup tipo;
  std::array<OptionButton, 5> Option;
  Button Command2, Command1;

 private:
  void Confirm(Player& player);
};

}  // namespace orm
