// Simple bending of rectangular, T, inverted T and double T sections of reinforced concrete by the
// method of the allowable stresses: concrete without tension, steel counted 15 times, up to eight
// layers of bars. Lengths in cm, areas in cmq, moments in kg x cm, stresses in kg/cmq.
#pragma once

#include <array>

#include "structures/solvers/bending.h"

namespace orm {

// One layer of bars.
struct StratoT {
  double A = 0;  // cmq
  double d = 0;  // from the upper edge, cm
};

// A shape without a flange has the web's width and a thickness of 0 in its place.
struct DatiSezione {
  double B = 0, b = 0, Bi = 0;  // width of the upper flange, of the web, of the lower flange
  double H = 0;                 // total height
  double s = 0, si = 0;         // thickness of the upper and of the lower flange
  std::array<StratoT, 8> strati{};
  double M = 0;  // positive when it stretches the lower fibres
};

enum class EsitoT {
  Fatto = 0,
  GeometriaErrata = 1,  // also a datum or a result that is not a finite number
  SenzaArmatura = 2,
  CopriferroErrato = 3,
  ArmaturaNegativa = 4
};

struct RisultatiSezione : RisultatiFlessione {
  EsitoT esito = EsitoT::Fatto;
  std::array<double, 8> acciaio{};  // of each layer
  bool operator==(const RisultatiSezione&) const = default;
};

// First and second moment of the transformed section about the line at depth x. The neutral axis
// is where the first one is 0. A depth between s and s + 1e-9 falls into the third range of the
// formulas, that of an axis in the lower flange.
double MomentoStaticoT(double x, const DatiSezione& z);
double MomentoInerziaT(double x, const DatiSezione& z);

// Other outcomes than `Fatto` write the outcome alone. A moment of 0 clears the results. `minimo`
// stays as it was when no layer is compressed. The distance of a layer without area counts nothing;
// a layer at distance 0 lies on the upper edge and stays there when a negative moment turns the
// section over.
void VerificaSezioneT(const DatiSezione& dati, RisultatiSezione& risultati);

}  // namespace orm
