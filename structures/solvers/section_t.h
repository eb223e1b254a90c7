// Simple bending of rectangular, T, inverted T and double T sections of reinforced concrete by the
// method of the allowable stresses: concrete without tension, steel counted 15 times, up to eight
// layers of bars. Lengths in cm, areas in cmq, moments in kg x cm, stresses in kg/cmq.
#pragma once

#include <array>

namespace orm {

// The vectors as callers fill and read them; element 0 of the data is not used.
//   1 width of the upper flange B    2 web thickness b             3 width of the lower flange Bi
//   4 total height H                 5 thickness of upper flange s 6 thickness of lower flange si
//   7, 9, ... 21 steel area of layer 1..8    8, 10, ... 22 its distance from the upper edge
//   23 bending moment, positive when it stretches the lower fibres
// A shape without a flange has the web's width and a thickness of 0 in its place.
using DatiSezione = std::array<double, 24>;
//   0 outcome (EsitoT)               1 neutral axis from the upper edge
//   2, 3 concrete stress at the upper and the lower edge (compression negative)
//   4 to 11 steel stress of layer 1..8 (tension positive)
//   12 greatest steel stress among those not negative    13 most negative steel stress
using RisultatiSezione = std::array<double, 14>;

enum class EsitoT {
  Fatto = 0,
  GeometriaErrata = 1,  // also a datum or a result that is not a finite number
  SenzaArmatura = 2,
  CopriferroErrato = 3,
  ArmaturaNegativa = 4
};

// One layer of bars.
struct StratoT {
  double A = 0;  // cmq
  double d = 0;  // from the upper edge, cm
};

struct SezioneT {
  double B = 0, b = 0, Bi = 0, H = 0, s = 0, si = 0;
  std::array<StratoT, 8> strati;
};

// The measures without the moment; a layer without area has distance 0, whatever was given.
SezioneT LeggiSezioneT(const DatiSezione& dati);

// First and second moment of the transformed section about the line at depth x. The neutral axis
// is where the first one is 0. A depth between s and s + 1e-9 falls into the third range of the
// formulas, that of an axis in the lower flange.
double MomentoStaticoT(double x, const SezioneT& z);
double MomentoInerziaT(double x, const SezioneT& z);

// Other outcomes than `Fatto` write element 0 alone. A moment of 0 clears the results. Element 13
// stays as it was when no layer is compressed. A layer at distance 0 lies on the upper edge and
// stays there when a negative moment turns the section over.
void VerificaSezioneT(const DatiSezione& dati, RisultatiSezione& risultati);

inline EsitoT Esito(const RisultatiSezione& risultati) {
  return static_cast<EsitoT>(static_cast<int>(risultati[0]));
}

}  // namespace orm
