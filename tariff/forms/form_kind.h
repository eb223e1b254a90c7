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

  Frame Frame1{*this, "Frame1"};
  OptionGroup tipo;
  std::array<OptionButton, 4> Option{
      {{*this, "Option1", "PREVENTIVA e IN CORSO D'OPERA", tipo},
       {*this, "Option2", "CONSUNTIVA a Fine Lavori", tipo},
       {*this, "Option3", "INTERROTTA per risoluzione Incarico", tipo},
       {*this, "Option4", "A Percentuali distinte per Prog. e D.L.", tipo}}};
  std::array<Button, 4> Help{{{*this, "Help1", "HELP"},
                              {*this, "Help2", "HELP"},
                              {*this, "Help3", "HELP"},
                              {*this, "Help4", "HELP"}}};
  Button OKbutton{*this, "OKbutton", "&O.K.", Button::Role::Default};
};

// Asks the kind; `scissa`: whether the case has the fourth one. False when the form was left by its
// window, which ends the input.
bool ChiediTipologia(Player& player, std::string& TipoParcella, bool scissa);

}  // namespace orm
