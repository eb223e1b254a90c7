// frmGEN_Tipologia: the kind of fee note.
#pragma once

#include <array>

#include "dialogs/form.h"
#include "dialogs/player.h"

namespace orm {

class FrmGenTipologia : public Form {
 public:
  // Starts from `tipoParcella`: "NORMALE", "CONSUNTIVA", "INTERROTTA" or "SCISSA".
  FrmGenTipologia(Player& player, const std::string& tipoParcella);

  std::string TipoParcella;  // the value chosen; as given when the form was left by its window

  Frame Frame1;
  OptionGroup tipo;
  std::array<OptionButton, 4> Option;
  std::array<Button, 4> Help;
  Button OKbutton;
};

}  // namespace orm
