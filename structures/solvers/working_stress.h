// What every check by the working-stress method shares: the modular ratio, the least cover, the
// square of a length, and the search of the neutral axis by halving.
#pragma once

#include <cmath>

namespace orm {

// Steel counts as concrete `n` times its area (D.M. 9-1-1996, method of the allowable stresses).
inline constexpr double kModuloN = 15.0;
// Least distance of steel from either edge, cm.
inline constexpr double kCopriferroMinimo = 2.0;

inline double Square(double v) { return v * v; }

// Root of `f` between x1 and x2, where it changes sign: the interval is halved until f is exactly 0
// in its middle or it is not wider than `tolleranza`. Comes to an end for any f and any ends: an
// interval that two neighbouring numbers cannot halve any more is a root as well.
template <class Funzione>
double Bisezione(const Funzione& f, double x1, double x2, double tolleranza) {
  double f1 = f(x1);
  for (;;) {
    const double xm = (x1 + x2) / 2;
    const double fm = f(xm);
    if (fm == 0 || std::fabs(x2 - x1) <= tolleranza || xm == x1 || xm == x2) return xm;
    // The sign of the product fm x f1, which could itself fall below the least double.
    const bool sameSign = (fm > 0 && f1 > 0) || (fm < 0 && f1 < 0);
    if (sameSign) {
      x1 = xm;
      f1 = fm;
    } else {
      x2 = xm;
    }
  }
}

}  // namespace orm
