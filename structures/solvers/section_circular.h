// Simple bending of circular and annular sections of reinforced concrete by the method of the
// allowable stresses (n = 15): up to two rings of bars and two groups of bars on the vertical axis.
// Lengths in cm, areas in cmq, moments in kg x cm, stresses in kg/cmq.
#pragma once

#include <array>

namespace orm {

//   1 outer diameter   2 inner diameter, 0 for a solid section
//   3, 5 steel area of ring 1 and 2      4, 6 diameter of the ring
//   7, 9 steel area of group 1 and 2     8, 10 its distance from the upper edge
//   11 bending moment, positive when it stretches the lower fibres
using DatiCircolare = std::array<double, 12>;
//   0 outcome (EsitoC)   1 neutral axis from the upper edge
//   2, 3 concrete stress at the upper and the lower edge (compression negative)
//   4, 5 steel stress at the upper and the lower point of ring 1    6, 7 of ring 2
//   8, 9 stresses of the groups   10 greatest steel stress among those not negative
//   11 most negative steel stress   12 position of the greatest one, 1 to 6 in elements 4 to 9
using RisultatiCircolare = std::array<double, 13>;

enum class EsitoC {
  Fatto = 0,
  GeometriaErrata = 1,  // also a datum or a result that is not a finite number
  SenzaArmatura = 2,
  ArmaturaErrata = 3
};

struct SezioneCircolare {
  double D = 0, Di = 0;
  double Ad1 = 0, Dd1 = 0, Ad2 = 0, Dd2 = 0;
  double Ac1 = 0, d1 = 0, Ac2 = 0, d2 = 0;
};

// First and second moment of the transformed section about the chord of half angle t, which lies
// at the depth (1 - cos t) x D / 2. `Cerchio`: no hole, or a hole wholly in tension. `Corona`: the
// chord cuts the hole. `CoronaOltre`: the hole is wholly compressed; its settled expressions differ
// from elastic theory (docs/sections.md) and are to stay.
double MomentoStaticoCerchio(double t, const SezioneCircolare& z);
double MomentoStaticoCorona(double t, const SezioneCircolare& z);
double MomentoStaticoCoronaOltre(double t, const SezioneCircolare& z);
double MomentoInerziaCerchio(double t, const SezioneCircolare& z);
double MomentoInerziaCorona(double t, const SezioneCircolare& z);
double MomentoInerziaCoronaOltre(double t, const SezioneCircolare& z);

// Other outcomes than `Fatto` write element 0 alone. A moment of 0 clears the results. Elements 10
// and 11 stay as they were when nothing is stretched or compressed. With a negative moment elements
// 8 and 9 change places, and a second group is not turned over when the first has distance 0.
void VerificaSezioneCircolare(const DatiCircolare& dati, RisultatiCircolare& risultati);

inline EsitoC Esito(const RisultatiCircolare& risultati) {
  return static_cast<EsitoC>(static_cast<int>(risultati[0]));
}

}  // namespace orm
