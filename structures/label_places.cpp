#include "structures/label_places.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <utility>

namespace orm {
namespace {
constexpr double kAside = 0.35;     // between a label and what it steps aside for
constexpr double kStep = 0.1;       // of the heights that are tried
constexpr int kSteps = 60;          // up and down
constexpr double kRightward = 0.6;  // cost of a step to the right, against one up or down
constexpr double kCrossing = 5;     // cost of a crossing
constexpr double kRoomAtEnds = 0.1;
constexpr int kRounds = 4;

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

int PostiEtichette::Incroci(const Occupato& nuovo) const {
  int crossings = 0;
  for (const Occupato& altro : occupati_) {
    if (nuovo.segno) crossings += Crosses(*nuovo.segno, nuovo.Attacco(), altro.posto) ? 1 : 0;
    if (altro.segno) crossings += Crosses(*altro.segno, altro.Attacco(), nuovo.posto) ? 1 : 0;
    if (nuovo.segno && altro.segno)
      crossings += Cross(*nuovo.segno, nuovo.Attacco(), *altro.segno, altro.Attacco()) ? 1 : 0;
  }
  return crossings;
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
    for (const Occupato& altro : occupati_)
      if (r.Tocca(altro.posto)) to = std::max(to, altro.posto.x2 + kAside);
    moved = to > r.x1;
    r.x2 += to - r.x1;
    r.x1 = to;
  }
}

Riquadro PostiEtichette::Posto(const Richiesta& etichetta, const Riquadro* attuale) const {
  const double first = etichetta.inizi.front(), y = etichetta.y;
  const double larghezza = etichetta.larghezza, altezza = etichetta.altezza;
  Riquadro best{first, first + larghezza, y - altezza / 2, y + altezza / 2};
  double least = std::numeric_limits<double>::infinity();
  if (attuale != nullptr) {
    best = *attuale;
    least = Costo(etichetta, best);
  }
  for (int step = 0; step <= 2 * kSteps; ++step) {
    const double up = (step % 2 == 0 ? -1 : 1) * std::ceil(step / 2.0) * kStep;
    const double middle = y + up;
    if (step > 0 && (middle < minimo_ || middle > massimo_)) continue;
    for (const double x : etichetta.inizi) {
      Riquadro r{x, x + larghezza, middle - altezza / 2, middle + altezza / 2};
      Scansa(r);
      if (SuUnaRiga(r) || r.x2 > destra_) continue;
      const double cost = Costo(etichetta, r);
      if (cost >= least) continue;
      least = cost;
      best = r;
    }
  }
  return best;
}

double PostiEtichette::Costo(const Richiesta& etichetta, const Riquadro& posto) const {
  return std::fabs((posto.y1 + posto.y2) / 2 - etichetta.y) +
         kRightward * std::fabs(posto.x1 - etichetta.inizi.front()) +
         kCrossing * Incroci({posto, etichetta.segno});
}

// Each in its turn, then each once more, as it may stand better now that the others have their
// places. What changes place makes all of them together stand better, so it comes to an end.
std::vector<Riquadro> PostiEtichette::Posti(const std::vector<Richiesta>& etichette) {
  const auto before = static_cast<std::ptrdiff_t>(occupati_.size());
  for (const Richiesta& e : etichette) occupati_.push_back({Posto(e), e.segno});
  bool moved = true;
  for (int round = 0; round < kRounds && std::exchange(moved, false); ++round)
    for (const Richiesta& e : etichette) {
      // The one that stands longest goes and comes again, so that each keeps its turn.
      const auto oldest = occupati_.begin() + before;
      const Riquadro old = oldest->posto;
      occupati_.erase(oldest);
      const Riquadro posto = Posto(e, &old);
      occupati_.push_back({posto, e.segno});
      moved = moved || posto.x1 != old.x1 || posto.y1 != old.y1;
    }
  std::vector<Riquadro> posti;
  for (auto o = occupati_.begin() + before; o != occupati_.end(); ++o) posti.push_back(o->posto);
  return posti;
}

}  // namespace orm
