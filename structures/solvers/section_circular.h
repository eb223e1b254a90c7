// Simple bending of circular and annular sections of reinforced concrete by the method of the
// allowable stresses (n = 15): up to two rings of bars and two groups of bars on the vertical axis.
// Lengths in cm, areas in cmq, moments in kg x cm, stresses in kg/cmq.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "runtime/explanation/conto.h"
#include "structures/solvers/bending.h"

namespace orm {

struct DatiCircolare {
  double D = 0, Di = 0;                       // outer and inner diameter; 0 for a solid section
  double Ad1 = 0, Dd1 = 0, Ad2 = 0, Dd2 = 0;  // rings: steel area, diameter
  double Ac1 = 0, d1 = 0, Ac2 = 0, d2 = 0;    // groups: steel area, distance from the upper edge
  double M = 0;                               // positive when it stretches the lower fibres
};

enum class EsitoC {
  Fatto = 0,
  GeometriaErrata = 1,  // also a datum or a result that is not a finite number
  SenzaArmatura = 2,
  ArmaturaErrata = 3
};

// Places of the steel stresses: upper and lower point of each ring, then the groups.
enum PuntoArmatura : std::size_t { Sopra1, Sotto1, Sopra2, Sotto2, Gruppo1, Gruppo2, NumeroPunti };

struct RisultatiCircolare : RisultatiFlessione {
  EsitoC esito = EsitoC::Fatto;
  double semiangolo = 0;  // of the chord that is the neutral axis, radians
  std::array<double, NumeroPunti> acciaio{};
  int posMassimo = 0;  // of the greatest stress, 1 to 6
  bool operator==(const RisultatiCircolare&) const = default;
};

// First and second moment of the transformed section about the chord of half angle t, which lies
// at the depth (1 - cos t) x D / 2. `Cerchio`: no hole, or a hole wholly in tension. `Corona`: the
// chord cuts the hole. `CoronaOltre`: the hole is wholly compressed; its settled expressions differ
// from elastic theory (docs/sections.md) and are to stay.
double MomentoStaticoCerchio(double t, const DatiCircolare& z);
double MomentoStaticoCorona(double t, const DatiCircolare& z);
double MomentoStaticoCoronaOltre(double t, const DatiCircolare& z);
double MomentoInerziaCerchio(double t, const DatiCircolare& z);
double MomentoInerziaCorona(double t, const DatiCircolare& z);
double MomentoInerziaCoronaOltre(double t, const DatiCircolare& z);

// The second moment about the chord of half angle t, part by part, as it is reckoned.
struct ParteInerzia {
  enum class Quale { Segmento, Foro, Acciaio, TolteDalForo, DateDalForo } quale;
  Conto conto;
  bool toglie = false;  // taken away from the sum of those before it
};
std::vector<ParteInerzia> PartiInerzia(double t, const DatiCircolare& z);
// Half angle of the same chord on the hole.
double SemiangoloForo(double t, const DatiCircolare& z);
// The section as it is verified: turned over under a negative moment.
DatiCircolare ComeVerificata(const DatiCircolare& dati);

// Other outcomes than `Fatto` write the outcome alone. A moment of 0 clears the results. `massimo`
// and `minimo` stay as they were when nothing is stretched or compressed. With a negative moment
// the results of the two groups change places, and a second group is not turned over when the first
// has distance 0.
void VerificaSezioneCircolare(const DatiCircolare& dati, RisultatiCircolare& risultati);

}  // namespace orm
