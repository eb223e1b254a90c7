// What a check of bending finds, whatever the section.
#pragma once

namespace orm {

// Stresses in kg/cmq: compression negative, tension positive.
struct RisultatiFlessione {
  double asse = 0;                 // neutral axis from the upper edge, cm
  double clsSup = 0, clsInf = 0;   // concrete at the upper and the lower edge
  double massimo = 0, minimo = 0;  // greatest steel stress not negative, most negative one
  // What each stress is reckoned from: the axis from the compressed edge, cm, and the moment of
  // inertia of the transformed section about it, cm4.
  double x = 0, inerzia = 0;
  bool operator==(const RisultatiFlessione&) const = default;
};

}  // namespace orm
