// Bars of the truss-joist slab: how the automatic choice moves through the diameters, anchorages,
// and lengths. Diameters in mm, areas in cmq, stresses in kg/cmq, lengths in m. `passi`, where it
// is given, receives how a length came about.
#pragma once

#include <optional>
#include <string_view>

#include "runtime/explanation/explanation.h"

namespace orm {

// What is asked for a kind of bar: a diameter, 0 for none, or nothing for the automatic choice.
using SceltaFerro = std::optional<double>;
SceltaFerro LeggiSceltaFerro(std::string_view testo);

double AreaDaDiametro(double diametro);  // 0 for a diameter that the table does not have
double DiametroDaArea(double area);      // the same the other way round

// How a kind takes part in the attempts: absent before attempt `primo`, then one diameter of the
// table after the other, `quanti` in all, and staying with the last one.
struct GenereFerro {
  int primo;
  int quanti;
};
inline constexpr GenereFerro kFerroAggiuntivo{1, 6};     // 6 to 16 mm
inline constexpr GenereFerro kFerroIntegrativo1{7, 6};   // 6 to 16 mm
inline constexpr GenereFerro kFerroIntegrativo2{13, 7};  // 6 to 18 mm
inline constexpr GenereFerro kMonconeLungo{1, 6};
inline constexpr GenereFerro kMonconeCorto{7, 6};
inline constexpr int kTentativiCampata = 19;
inline constexpr int kTentativiMonconi = 12;

// Area of one bar at attempt k, from 1.
double AreaFerro(const GenereFerro& genere, const SceltaFerro& scelta, int k);

// Anchorage of a span bar behind the support: V is the shear, A the steel that carries it there,
// tb the allowed bond stress. Rounded up to 5 cm.
double AncoraggioCampata(double V, double A, double diametro, double tb, Catena* passi = nullptr);

// Anchorage of an upper stub, hooked by 20 diameters, whose steel works at `sigma`. Rounded up to
// 5 cm.
double AncoraggioMoncone(double diametro, double sigma, double tb, Catena* passi = nullptr);

// A length in cm, not below 15 cm and rounded up to 5 cm, in m.
double MinimoAncoraggio(double x, Catena* passi = nullptr);

// Length of a span bar that stops where the moment allows. L0 is the length of the parabola of
// moments, `a` what this bar and those that stop before it give to the moment (area by arm),
// `totale` what all steel gives; 25 diameters are added at both ends. 0 without steel.
double LunghezzaFerroIntegrativo(double L0, double a, double totale, double diametro,
                                 Catena* passi = nullptr);

// Distance from a support at which the support's moment has fallen by M, in a span of length Lc
// under q; its middle where it never falls so far.
double DistanzaDiCaduta(double V, double q, double M, double Lc, Catena* passi = nullptr);

}  // namespace orm
