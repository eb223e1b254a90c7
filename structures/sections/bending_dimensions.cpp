// The dimension lines of a section.
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "runtime/numbers.h"
#include "structures/sections/bending_picture.h"
#include "structures/sections/picture_pens.h"

namespace orm {
namespace {

constexpr double kCovers = 0.3,
                 kThicknesses = -2.8;  // lines left of the section, which begins at 1
constexpr double kFromSection = 0.6;   // lines above and below it
constexpr double kBeforeHeight = 1.4;  // room left of the line of the height
constexpr double kAfterName = 0.8;     // where a label beside a width would seem to go on with it

std::string Scritta(const QuotaSezione& quota) {
  return quota.nome + " " + FormatPattern(std::fabs(quota.a - quota.da), "0.##");
}

}  // namespace

// Where the name of a measure on a vertical line stands: in its middle, or, where that has no room
// for it, beyond the edge of the section, so that no witness line goes through it.
double DisegnoFlessione::QuotaNome(const QuotaSezione& quota) const {
  const double line = lavagna_.LineHeight(), middle = Y((quota.da + quota.a) / 2);
  if ((quota.a - quota.da) / Sc_ >= line) return middle;
  if (quota.da == 0) return Y(0) + line / 2;
  return quota.a == H_ ? Y(H_) - line / 2 : middle;
}

// From the edge of the section at a depth to a line on the left of it.
void DisegnoFlessione::Richiamo(double profondita, double x) {
  const auto edges = tratti_(std::clamp(profondita, 0.0, H_));
  const double y = Y(profondita);
  quote_.Richiamo({edges.empty() ? X(W_ / 2) : X(edges.front().da), y}, {x, y});
}

// Measures one below the other on a line; small ones have their names stepping aside.
void DisegnoFlessione::Catena(double x, const std::vector<QuotaSezione>& quote) {
  std::vector<double> middles;
  for (const QuotaSezione& quota : quote) middles.push_back(QuotaNome(quota));
  const auto names = QuoteEtichette(middles, lavagna_.LineHeight(), false, 0, 9);
  for (std::size_t i = 0; i < quote.size(); ++i) {
    for (const double depth : {quote[i].da, quote[i].a}) Richiamo(depth, x);
    quote_.Riga({x, Y(quote[i].da)}, {x, Y(quote[i].a)});
  }
  for (std::size_t i = 0; i < quote.size(); ++i)
    quote_.Nome(x - 0.4, names[i], Scritta(quote[i]), Anchor::Right);
}

void DisegnoFlessione::QuoteVerticali(const QuotaSezione& altezza,
                                      const std::vector<QuotaSezione>& copriferri,
                                      const std::vector<QuotaSezione>& spessori) {
  lavagna_.SetFont(kSmall);
  const double x = sinistra_ + kBeforeHeight;
  for (const double depth : {altezza.da, altezza.a}) {
    // Goes on from the chain that reaches this edge, if one does.
    const auto reaches = [depth](const QuotaSezione& q) { return q.da == depth || q.a == depth; };
    if (std::ranges::any_of(spessori, reaches))
      quote_.Richiamo({kThicknesses, Y(depth)}, {x, Y(depth)});
    else if (std::ranges::any_of(copriferri, reaches))
      quote_.Richiamo({kCovers, Y(depth)}, {x, Y(depth)});
    else
      Richiamo(depth, x);
  }
  quote_.Riga({x, Y(altezza.da)}, {x, Y(altezza.a)});
  lavagna_.SetHalo(true);
  Catena(kThicknesses, spessori);
  Catena(kCovers, copriferri);
  lavagna_.SetHalo(false);
  const double middle = Y((altezza.da + altezza.a) / 2);
  quote_.Nome(x - 0.1, std::max(middle, 1 + lavagna_.TextWidth(Scritta(altezza)) / 2 - 1),
              Scritta(altezza), Anchor::Above, true);
}

void DisegnoFlessione::QuotaLarghezza(const QuotaSezione& larghezza, double profondita) {
  lavagna_.SetFont(kSmall);
  const double edge = Y(profondita), side = profondita > 0 ? -1 : 1;
  const double line = edge + side * kFromSection;
  quote_.Orizzontale(X(larghezza.da), X(larghezza.a), line, Scritta(larghezza), edge);
  const double half = lavagna_.TextWidth(Scritta(larghezza)) / 2;
  const double middle = X((larghezza.da + larghezza.a) / 2), over = lavagna_.LineHeight();
  posti_.Riga(X(larghezza.da) - 0.3, X(larghezza.a) + 0.3, line, 0.1);
  posti_.Occupa({middle - half, middle + half + kAfterName, std::min(line, line + side * over),
                 std::max(line, line + side * over)});
}

void DisegnoFlessione::QuotaAnima(const QuotaSezione& larghezza, double profondita) {
  lavagna_.SetFont(kSmall);
  const double y = Y(profondita), x = X(larghezza.a) + 0.3, height = lavagna_.LineHeight() / 2;
  quote_.Riga({X(larghezza.da), y}, {X(larghezza.a), y});
  quote_.Nome(x, y, Scritta(larghezza), Anchor::Left);
  posti_.Occupa({x, x + lavagna_.TextWidth(Scritta(larghezza)), y - height, y + height});
}

}  // namespace orm
