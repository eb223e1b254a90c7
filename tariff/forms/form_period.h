// The dialog of the tariff period of a row, as the cases with lots of rows show it under their own
// names.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

struct TestiTariffe {
  std::string nome, titolo, riquadro;
  std::array<std::string, 5> periodi;
};

class FrmTariffe : public Form {
 public:
  // Periods of a lot only go forward: those up to `ultimo`, the last one used, are not offered.
  // `periodo` is chosen at first, or the first one offered. `esiste`: the row is there already, and
  // leaving the form by its window keeps it; otherwise it ends the periods.
  FrmTariffe(Player& player, const TestiTariffe& testi, std::string dove, int ultimo,
             const std::string& periodo, bool esiste);

  // When not empty, why no further row can be entered: shown instead of taking the period.
  std::string Rifiuto;
  std::string Tariffa;  // "1" to "5", "0" at the end of the periods
  std::optional<std::int16_t> Periodo() const;

  Label lblLotto;
  Frame Frame1;
  OptionGroup tipo;
  std::array<OptionButton, 5> Option;
  Button Command2, Command1;

 private:
  void Confirm(Player& player);
};

}  // namespace orm
