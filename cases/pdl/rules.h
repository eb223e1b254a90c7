// Rules of the notes of design and supervision that print nothing: the bases of a lot and the
// services of a row.
#pragma once

#include <span>
#include <string>

#include "cases/pdl/data.h"
#include "runtime/explanation/conto.h"
#include "tariff/law/tariff_tables.h"

namespace orm {

// The amounts that a lot's percentages are taken on, over all its rows, and by how much the works
// supervised go beyond the design, where no variation explains it.
struct BasiLotto {
  Conto BaseProgetto, BaseDirezione, EccedenzaLavori;
};
// Two amounts of a row, without one of 0. Sums begin with `zero`, which may be mute.
Conto SommaDi(double a, double b, const Conto& zero);
BasiLotto BasiDelLotto(std::span<const RigaPdl> righe, std::string_view TipoParcella,
                       const Conto& zero = {});

// 1 for each service done, a to l: all of them with "T". Letters stand at every second character
// of the string; any other letter is a RuntimeFailure.
Aliquote ServiziFatti(std::string_view TipoPrestazione, std::string_view prestazioni,
                      const char* campo = "Prestazioni");
// The letters of a group in the order of the table, "a+c+f".
enum class GruppoServiziPdl { Progetto, Direzione };
std::string TestoPrestazioni(const Aliquote& fatti, GruppoServiziPdl gruppo);

}  // namespace orm
