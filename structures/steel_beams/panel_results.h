// The results of a check of NP beams: each value beside the one that is allowed.
#pragma once

#include <deque>
#include <initializer_list>

#include "dialogs/form.h"

namespace orm {

struct ValoreVerificato {
  double ammesso = 0, calcolato = 0;
};

class RisultatiPutrelle {
 public:
  // A row for each caption.
  RisultatiPutrelle(Form& form, std::initializer_list<const char*> voci);
  Layout Contents();
  void Azzera();
  // One value for each row; those beyond what is allowed warn.
  void Mostra(std::initializer_list<ValoreVerificato> valori);

  Frame fraRisultati;
  std::deque<Label> lblColonne;
  std::deque<FloatBox> cdVAmmessi, cdRisultati;
};

}  // namespace orm
