// How the results that a form shows came about, for whoever asks: a button with the key F4, and the
// form that tells it. Their explanations have the line 0, as they stand in no report.
#pragma once

#include <string>
#include <vector>

#include "dialogs/form.h"
#include "dialogs/player.h"
#include "runtime/explanation/steps.h"

namespace orm {

// F4 among the keys of a button, which are characters: one that nobody types.
inline constexpr const char* kTastoF4 = "\uF704";

// Belongs to a form and stands among its buttons. It can be pressed as long as there are results.
class PulsanteSpiega : public Button {
 public:
  PulsanteSpiega(Form& form, Player& player);
  // Of the results that are shown now, each with the line that tells it.
  void Di(std::vector<Spiegazione> risultati);
  void Nessuna() { Di({}); }

 private:
  Player& player_;
  std::vector<Spiegazione> risultati_;
};

class FrmGenSpiega : public Form {
 public:
  FrmGenSpiega(Player& player, const std::string& di, const std::string& testo);

  Frame fraSpiegazione{*this, "fraSpiegazione", "COME SI ARRIVA A OGNI RISULTATO"};
  TestoBox txtSpiegazione{*this,
                          "txtSpiegazione",
                          "",
                          {.longest = 1000000, .lines = 24, .readOnly = true, .width = 70}};
  Button cmdCOPIA{*this, "cmdCOPIA", "C&OPIA"};
  Button cmdCHIUDI{*this, "cmdCHIUDI", "&CHIUDI", Button::Role::Default};
};

// A result of the screen under its caption; the last step has the figure that is shown.
Spiegazione Risultato(const std::string& etichetta, Catena passi);

}  // namespace orm
