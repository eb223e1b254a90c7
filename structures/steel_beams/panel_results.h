// Panel of the results of a check of NP beams: each value beside the one that is allowed.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "dialogs/data_forms/explanations.h"
#include "structures/numbered_controls.h"

namespace orm {

struct ValoreVerificato {
  double ammesso = 0, calcolato = 0;
};

inline constexpr const char *kEntroLimiti = "VALORI ENTRO I LIMITI",
                            *kOltreLimiti = "VALORI OLTRE I LIMITI";

class PannelloRisultatiPutrelle {
  Form& form_;  // before the controls, which are built on it
  std::vector<std::string> voci_;

 public:
  // A row for each caption.
  PannelloRisultatiPutrelle(Form& form, std::vector<std::string> voci);
  Layout Contents(Label& esito);
  void Azzera();
  // One value for each row; those beyond what is allowed warn. True when none is.
  bool Mostra(std::initializer_list<ValoreVerificato> valori);
  // One for each row, under its caption.
  std::vector<Spiegazione> Spiegate(std::initializer_list<Catena> catene) const;

  static constexpr double kMassimo = 99999999.99;
  Frame fraRisultati{form_, "fraRisultati", "RISULTATI"};
  Schiera<Label> lblColonne{form_, "lblColonne", 0, {"", "VALORI AMMESSI", "CALCOLATI"}};
  Schiera<FloatBox> cdVAmmessi{form_, "cdVAmmessi", 0, voci_,
                               NumberLimits{.least = -kMassimo, .most = kMassimo}};
  Schiera<FloatBox> cdRisultati{form_, "cdRisultati", 0, voci_,
                                NumberLimits{.least = -kMassimo, .most = kMassimo}};
};

}  // namespace orm
