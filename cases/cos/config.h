// The tariff of static testing, kept in CS1.CFG and CS2.CFG, which the user may edit.
//
// Each field of the file is followed by a comment field; line ends do not matter. Names of the five
// periods, names of the five variations, the unit of rounding; then for each period a block: mode,
// count n, least fee, percentage beyond the last amount, n rising amounts, n values. Amounts and
// fees are in Lire, percentages in percent.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "cases/cos/data.h"
#include "runtime/explanation/conto.h"
#include "runtime/folder.h"
#include "tariff/law/readings.h"

namespace orm {

inline constexpr const char* kFileCs1 = "CS1.CFG";
inline constexpr const char* kFileCs2 = "CS2.CFG";

struct TestataCos {
  std::array<std::string, kPeriodiCos> NomePeriodo, NotaPeriodo;  // the note: its comment field
  std::array<std::string, kVariazioniCos> NomeVariazione;
  double UnitaArrotondamento = 0;  // 0: no rounding
};

struct PeriodoCos {
  std::string ModoPeriodo;  // "ONORARIO": the values are fees; any other: percentages
  double MinimoPeriodo = 0;
  double PercOltre = 0;
  std::vector<double> Limite, Valore;

  // The limits around an amount and their values; beyond either end both are that one.
  Interpolazione PassiA(double lire) const;
  // The value at an amount, interpolated between the two.
  Conto ValoreA(double lire) const;
  // The same as a fee, at least MinimoPeriodo.
  Conto OnorarioA(double lire) const;
};

// Both read the file of the case from its head. A file that is absent, short, or holds what cannot
// be (a count of 0, amounts that do not rise, negative figures) is a RuntimeFailure with its place;
// what stands behind the block that is asked for is not looked at.
TestataCos LeggiTestataCos(const WorkFolder& folder, const std::string& codice);
// `periodo` from 0 to 4.
PeriodoCos LeggiPeriodoCos(const WorkFolder& folder, const std::string& codice,
                           std::size_t periodo);

// The tariff of a case for its calculation, which sees no folder: the head, read at once, and the
// block of a period, read when it is asked for.
class TariffaCos {
 public:
  TariffaCos(WorkFolder folder, std::string codice)
      : testata(LeggiTestataCos(folder, codice)),
        folder_(std::move(folder)),
        codice_(std::move(codice)) {}

  const TestataCos testata;
  PeriodoCos Periodo(std::size_t periodo) const {
    return LeggiPeriodoCos(folder_, codice_, periodo);
  }

 private:
  WorkFolder folder_;
  std::string codice_;
};

}  // namespace orm
