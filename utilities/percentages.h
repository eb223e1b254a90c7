// Percentages of the tariff for one amount of works, table by table.
#pragma once

#include <string>

#include <vector>

#include "dialogs/data_forms/explanations.h"
#include "shell/state/run_state.h"

namespace orm {

struct RichiestaPercentuali {
  std::string classe = "1", categoria = "a";  // category empty for classes 5 and 8
  int periodo = 5;                            // 1 to 6
  double importo = 0;                         // in the currency of `lire`
  bool lire = true;
};

// Texts at the decimals of the criteria, cut as in a fee note; empty where a table has no value for
// the period. An amount of 0 gives "0%" in all.
struct Percentuali {
  std::string tabellaA;  // periods 1 to 5
  std::string tabellaC;  // periods 1 to 5
  std::string nuova;     // D.M. 4-4-2001, period 6
  std::vector<Spiegazione> perche;
};

Percentuali CalcolaPercentuali(const RichiestaPercentuali& richiesta, const Criteri& criteri);

// The uncut percentage of Table A, or of the curve of 2001 for period 6, of an amount in Lire.
double PercentualeDiCurva(double importoLire, const RichiestaPercentuali& richiesta);

}  // namespace orm
