// What the notes with lots of works call their lines, and the formula of a fee.
#pragma once

#include <string>
#include <string_view>

#include "tariff/table_a_slices.h"

namespace orm {

// "3 - CLASSE/CATEGORIA    1/c", the start of a line.
std::string TitoloLotto(std::size_t numero, std::string_view classe, std::string_view categoria);

// Where the data have the amounts of a lot or a row.
inline constexpr std::string_view kCampoProgetto = "PROGETTAZIONE, IMPORTO LAVORI";
inline constexpr std::string_view kCampoEspropri = "PROGETTAZIONE, ESPROPRI";
inline constexpr std::string_view kCampoSuppletivi = "PERIZIE, IMPORTO LAVORI SUPPLETIVI";
inline constexpr std::string_view kCampoEsproPerizie = "PERIZIE, ESPROPRI IN PERIZIE";
inline constexpr std::string_view kCampoDirezione = "DIREZIONE LAVORI, IMPORTO";

inline constexpr std::string_view kVocePercentualeProgetto = " % Prog. (Tab. A) = ";
inline constexpr std::string_view kVocePercentualeDirezione = " % D.L.  (Tab. A) = ";

// Supervision is printed above this amount.
inline constexpr double kDirezioneMinimaStampata = 3;
// And it is summed above this one.
inline constexpr double kDirezioneMinimaSommata = 2;

// "0,25 x ", the part of a fee that an article sets, at the start of a formula.
std::string TestoQuota(double quota);

// A fee and how it comes about: "`inizio`0,35 x 4,36916% x 1.000.000 x 1,15 x 1,25 =", or with the
// percentage first.
struct RigaFormula {
  std::string_view inizio = " ";
  bool percentualePrima = false;
  double aliquota = 0;
  int decimali = 2;  // of the aliquot, zeros at the end dropped
  const Percentuale& percentuale;
  std::string importo;
  std::string_view fattori = {};  // of its own, each with its " x "
  bool conCompensi = true;        // shows the coefficient of the compensations
};

}  // namespace orm
