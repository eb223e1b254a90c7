// The diagram of stresses beside a section.
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "runtime/numbers.h"
#include "structures/sections/bending_picture.h"
#include "structures/sections/picture_pens.h"

namespace orm {
namespace {

constexpr double kBase = 23.5;
constexpr double kConcreteUnits = 4, kSteelUnits = 8;  // of the allowed stress
constexpr double kNarrow = 0.95;                       // labels below each other, in lines

struct Reach {
  double units;  // length of the line
  bool over;     // the stress is not below the allowed one
};

Reach ReachOf(const TensioneDisegnata& t, const TensioniAmmissibili& ammesse) {
  const double allowed = t.cls ? ammesse.cls : ammesse.acciaio;
  const double most = t.cls ? kConcreteUnits : kSteelUnits;
  const bool over = std::fabs(t.valore) >= allowed;
  return {over ? most : std::fabs(t.valore) / (allowed / most), over};
}

}  // namespace

std::vector<double> QuoteEtichette(std::vector<double> quote, double passo, bool versoAlto,
                                   double minimo, double massimo) {
  const std::size_t n = quote.size();
  const auto down = [&] {
    for (std::size_t i = 1; i < n; ++i) quote[i] = std::min(quote[i], quote[i - 1] - passo);
  };
  const auto up = [&] {
    for (std::size_t i = n; i-- > 1;) quote[i - 1] = std::max(quote[i - 1], quote[i] + passo);
  };
  if (n == 0) return quote;
  if (versoAlto) {
    up();
    quote.front() = std::min(quote.front(), massimo);
    down();
  } else {
    down();
    quote.back() = std::max(quote.back(), minimo);
    up();
  }
  return quote;
}

void DisegnoFlessione::DiagrammaTensioni(std::vector<TensioneDisegnata> tensioni, double asse,
                                         const TensioniAmmissibili& ammesse) {
  if (!(ammesse.acciaio > 0 && ammesse.cls > 0)) return;
  std::stable_sort(tensioni.begin(), tensioni.end(),
                   [](const auto& a, const auto& b) { return a.profondita < b.profondita; });
  lavagna_.SetColour(kBlack);
  lavagna_.SetStroke(Stroke::Solid);
  lavagna_.SetWidth(1);
  lavagna_.DrawLine(kBase, Y(H_) - 0.3, kBase, Y(0) + 0.3);
  lavagna_.SetFont(kSmall);
  lavagna_.DrawText(kBase - 0.4, -0.2, "compressione", Anchor::Right);
  lavagna_.DrawText(kBase + 0.4, -0.2, "trazione", Anchor::Left);
  for (const TensioneDisegnata& t : tensioni) {
    const Reach reach = ReachOf(t, ammesse);
    const double y = Y(t.profondita), end = kBase + (t.valore < 0 ? -reach.units : reach.units);
    reach.over ? OverLimit(lavagna_) : WithinLimit(lavagna_);
    lavagna_.DrawLine(kBase, y, end, y);
    posti_.Riga(std::min(kBase, end), std::max(kBase, end), y);
  }
  // Labels give way from the axis outward, so that none reaches a line of the other sign.
  const bool upperCompressed = std::any_of(tensioni.begin(), tensioni.end(), [&](const auto& t) {
    return t.cls && t.profondita < asse;
  });
  ScriviTensioni(tensioni, ammesse, true, upperCompressed);
  ScriviTensioni(tensioni, ammesse, false, !upperCompressed);
}

// At the end of its line, or beyond the longer ones of compressed steel that pass at its height, if
// there is room before the section.
void DisegnoFlessione::ScriviCls(const TensioneDisegnata& cls,
                                 const std::vector<TensioneDisegnata>& tensioni,
                                 const TensioniAmmissibili& ammesse, double y) {
  const double own = kBase - ReachOf(cls, ammesse).units, half = lavagna_.LineHeight() / 2;
  double end = own;
  for (const TensioneDisegnata& t : tensioni)
    if (t.valore < 0 && std::fabs(y - Y(t.profondita)) < half)
      end = std::min(end, kBase - ReachOf(t, ammesse).units);
  if (end - lavagna_.TextWidth("cls") < X(W_) + 1) end = own;
  if (std::fabs(y - Y(cls.profondita)) > 0.01)
    Leader(lavagna_, own, Y(cls.profondita), end - 0.25, y);
  lavagna_.SetColour(kBlack);
  lavagna_.SetFont(kSmall);
  lavagna_.DrawText(end - 0.3, y, "cls", Anchor::Right);
  posti_.Occupa({end - 0.3 - lavagna_.TextWidth("cls"), end, y - half, y + half});
}

void DisegnoFlessione::ScriviTensioni(const std::vector<TensioneDisegnata>& tensioni,
                                      const TensioniAmmissibili& ammesse, bool compresse,
                                      bool versoAlto) {
  std::vector<double> heights;
  std::vector<TensioneDisegnata> shown;
  for (const TensioneDisegnata& t : tensioni) {
    if ((t.valore < 0) != compresse) continue;
    shown.push_back(t);
    heights.push_back(Y(t.profondita));
  }
  // On the side of the tensions stands "cls", at the end of its line.
  std::vector<double> places = heights;
  const auto edge = std::ranges::find_if(tensioni, &TensioneDisegnata::cls);
  const bool besideCls = !compresse && edge != tensioni.end();
  if (besideCls) places.insert(versoAlto ? places.end() : places.begin(), Y(edge->profondita));
  auto labels = QuoteEtichette(places, kNarrow * lavagna_.LineHeight(), versoAlto, 0.9, 8.7);
  if (besideCls) {
    const auto own = versoAlto ? labels.end() - 1 : labels.begin();
    ScriviCls(*edge, tensioni, ammesse, *own);
    labels.erase(own);
  }
  lavagna_.SetHalo(true);
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const double side = compresse ? 1 : -1;
    Leader(lavagna_, kBase, heights[i], kBase + side * 0.5, labels[i]);
    lavagna_.SetColour(kBlack);
    lavagna_.SetFont(kSmall, ReachOf(shown[i], ammesse).over);
    const std::string text = FormatPattern(shown[i].valore, "####.0") + " kg/cmq.";
    const double x = kBase + side * 0.6, far = x + side * lavagna_.TextWidth(text);
    const double half = lavagna_.LineHeight() / 2;
    lavagna_.DrawText(x, labels[i], text, compresse ? Anchor::Left : Anchor::Right);
    posti_.Occupa({std::min(x, far), std::max(x, far), labels[i] - half, labels[i] + half});
  }
  lavagna_.SetHalo(false);
}

}  // namespace orm
