// Rules of the geotechnical notes that print nothing: subclass and services of a row, the sums of a
// group.
#pragma once

#include <array>
#include <cstddef>

#include "cases/geo/data.h"
#include "runtime/explanation/conto.h"

namespace orm {

// From 0. There are four; any other is a RuntimeFailure.
std::size_t IndiceSottoclasse(const RigaGeo& riga);

// True for each service done. Letters stand at every second character of the string; any other
// letter is a RuntimeFailure.
std::array<bool, 6> ServiziFattiGeo(const RigaGeo& riga);

// What a group's percentages are taken on. Works beyond the design change no fee of the design.
struct GruppoGeo {
  std::size_t primaRiga = 0, righe = 0;
  Conto ProgettoGruppo = {}, DirezioneGruppo = {}, BaseDirezione = {};
  Conto SommaProgetto = {}, SommaDirezione = {};  // signed, as the list of amounts shows them
};

GruppoGeo BasiDelGruppo(const DatiGeotecnici& d, std::size_t primaRiga, std::size_t righe);

}  // namespace orm
