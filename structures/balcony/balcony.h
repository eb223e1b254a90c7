// Stone balcony: a slab that projects from the wall alone, on stone brackets or on steel beams.
// Stability of the slab against overturning, stresses in slab, brackets or beams, pressure on the
// wall; method of the allowable stresses. Free of any dialog.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>

#include "runtime/explanation/explanation.h"
#include "structures/loads/seismic_factors.h"

namespace orm {

enum class TipoBalcone { Putrelle, Mensole, LastraSemplice };

// Lengths in m, unless told otherwise; only what the kind has is read.
struct DatiBalcone {
  TipoBalcone tipo = TipoBalcone::Putrelle;
  // Slab on two beams or brackets: thickness, width from the wall outward, overhang beyond the
  // beams at each side, span between them.
  double t = 0, b = 0, Ls = 0, Lm = 0;
  double Bm = 0;                  // length of a beam or bracket outside the wall
  std::string putrella;           // height of the beam in mm, as in the table of profiles
  double b0 = 0, hi = 0, he = 0;  // bracket: base, height at the wall and at its end
  // Slab alone: length along the wall, thickness at the wall and at its end, projection.
  double lunghezza = 0, si = 0, se = 0, a = 0;
  double pr = 0;  // how far slab, beam or bracket goes into the wall

  double Pl = 0;  // along the free edges, kg/ml
  double qa = 0;  // spread service load, kg/mq
  double gs = 0;  // weight of the stone, kg/mc
  FattoriSismici sisma;
};

// In a seismic zone the vertical action is always that of ordinary works: the coefficient of
// protection counts nothing here.
constexpr FattoriSismici SismaDelBalcone(const CoefficientiSismici& coefficienti) {
  return {kAzioneVerticale, coefficienti.s};
}

// Elements of the results; stresses in kg/cmq, 0 for parts that the kind lacks.
enum ElementoBalcone : std::size_t {
  EsitoBalcone,  // 0 done, -1 stopped
  SigmaLastra,
  TauLastra,
  SigmaMensola,
  TauMensola,
  IncrementoMuratura,  // pressure that the balcony adds in the wall
  SigmaAcciaio,
  TauAcciaio,
  NumeroElementiBalcone
};
using RisultatiBalcone = std::array<double, NumeroElementiBalcone>;
// How each came about, and the stability of the slab, which has no element; empty where there is
// nothing to tell.
inline constexpr std::size_t StabilitaLato = NumeroElementiBalcone,
                             StabilitaSporto = StabilitaLato + 1;
using CateneBalcone = std::array<Catena, StabilitaSporto + 1>;

inline constexpr const char* kModelloBalcone = "###0.0";

// Which way the slab might overturn.
enum class Ribaltamento { SbalziLaterali, SportoSuMensole };

// What is to be done about a slab that might overturn: true goes on all the same.
using ProsegueInstabile = std::function<bool(Ribaltamento)>;

// A slab on beams or brackets is asked about for each way in which it might overturn; the first no
// ends the check with outcome -1 and every other element 0. The wall alone holds a slab without
// brackets, which is not asked about. The measures must have passed `DifettoBalcone`.
RisultatiBalcone VerificaBalcone(const DatiBalcone& dati, const ProsegueInstabile& prosegue,
                                 CateneBalcone* perche = nullptr);

// Shear (kg) and moment (kg x m) as the check counts them.
struct Sforzi {
  double V = 0, M = 0;
};
struct SforziSpiegati : Sforzi {
  Catena passiV, passiM;  // how they came about
};
SforziSpiegati SforziLastra(
    const DatiBalcone& dati);  // the greatest in a slab on beams or brackets
SforziSpiegati SforziAlMuro(
    const DatiBalcone& dati);  // of one beam, of one bracket, of the slab alone

}  // namespace orm
