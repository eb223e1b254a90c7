#include "structures/label_places.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace orm {
namespace {
constexpr double kAside = 0.35;     // between a label and what it steps aside for
constexpr double kStep = 0.1;       // of the heights that are tried
constexpr int kSteps = 60;          // up and down
constexpr double kRightward = 0.6;  // cost of a step to the right, against one up or down
constexpr double kCrossing = 2;     // cost of a crossing
constexpr double kRoomAtEnds = 0.3;

double Side(const Point& a, const Point& b, const Point& p) {
  return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
}

bool Cross(const Point& a, const Point& b, const Point& c, const Point& d) {
  return Side(a, b, c) * Side(a, b, d) < 0 && Side(c, d, a) * Side(c, d, b) < 0;
}

// A text, not just the room at its ends, which is reckoned rather wide.
bool Crosses(const Point& a, const Point& b, const Riquadro& r) {
  const double x1 = r.x1 + kRoomAtEnds, x2 = r.x2 - kRoomAtEnds;
  return Cross(a, b, {x1, r.y1}, {x2, r.y2}) || Cross(a, b, {x1, r.y2}, {x2, r.y1});
}
}  // namespace

// Each change makes the lines shorter, so it comes to an end.
void Districa(std::vector<EtichettaPosta>& etichette) {
  for (bool changed = true; std::exchange(changed, false);)
    for (EtichettaPosta& a : etichette)
      for (EtichettaPosta& b : etichette) {
        if (a.testo.size() != b.testo.size() || !Cross(a.segno, a.Attacco(), b.segno, b.Attacco()))
          continue;
        std::swap(a.posto, b.posto);
        changed = true;
      }
}

int PostiEtichette::Incroci(const Filo& filo, const Riquadro& etichetta) const {
  const auto labels = std::ranges::count_if(
      occupati_, [&](const Riquadro& r) { return Crosses(filo.da, filo.a, r); });
  const auto lines = std::ranges::count_if(fili_, [&](const Filo& f) {
    return Cross(filo.da, filo.a, f.da, f.a) || Crosses(f.da, f.a, etichetta);
  });
  return static_cast<int>(labels + lines);
}

bool PostiEtichette::SuUnaRiga(const Riquadro& r) const {
  return std::any_of(righe_.begin(), righe_.end(),
                     [&](const Riquadro& riga) { return r.Tocca(riga); });
}

void PostiEtichette::Scansa(Riquadro& r) const {
  for (bool moved = true; moved;) {
    double to = r.x1;
    for (const double y : {r.y1, (r.y1 + r.y2) / 2, r.y2})
      for (const double x : bordi_(y))
        if (x > r.x1 - kAside / 2 && x < r.x2 + kAside / 2) to = std::max(to, x + kAside);
    for (const Riquadro& altro : occupati_)
      if (r.Tocca(altro)) to = std::max(to, altro.x2 + kAside);
    moved = to > r.x1;
    r.x2 += to - r.x1;
    r.x1 = to;
  }
}

Riquadro PostiEtichette::Posto(std::initializer_list<double> inizi, double y, double larghezza,
                               double altezza, std::optional<Point> segno) {
  const double first = *inizi.begin();
  Riquadro best{first, first + larghezza, y - altezza / 2, y + altezza / 2};
  double least = std::numeric_limits<double>::infinity();
  for (int step = 0; step <= 2 * kSteps; ++step) {
    const double up = (step % 2 == 0 ? -1 : 1) * std::ceil(step / 2.0) * kStep;
    const double middle = y + up;
    if (step > 0 && (middle < minimo_ || middle > massimo_)) continue;
    for (const double x : inizi) {
      Riquadro r{x, x + larghezza, middle - altezza / 2, middle + altezza / 2};
      Scansa(r);
      if (SuUnaRiga(r) || r.x2 > destra_) continue;
      double cost = std::fabs(up) + kRightward * std::fabs(r.x1 - first);
      if (segno) cost += kCrossing * Incroci({*segno, {r.x1, middle}}, r);
      if (cost >= least) continue;
      least = cost;
      best = r;
    }
  }
  Occupa(best);
  if (segno) fili_.push_back({*segno, {best.x1, (best.y1 + best.y2) / 2}});
  return best;
}

}  // namespace orm
