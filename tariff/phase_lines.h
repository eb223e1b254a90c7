// The fee of a phase as the notes of site safety and of geotechnics print it: the percentage first.
#pragma once

#include <string_view>

#include "tariff/lot_lines.h"

namespace orm {

// "    4,36916% x 0,15 x 1.000.000 x 1,15 x 1,25 =": `fattori` and `StringaCoefficiente` come with
// their own " x ".
struct RigaFase {
  std::string_view inizio = "    ";
  const Percentuale& percentuale;
  double aliquota = 0;  // at most 4 decimals, zeros at the end dropped
  std::string_view importo;
  std::string_view fattori = {};
  std::string_view StringaCoefficiente;
};
// Prints it; `onorario` is cut to what is printed, and returned.
double StampaOnorarioFase(RunState& stato, const RigaFase& riga, double onorario);

}  // namespace orm
