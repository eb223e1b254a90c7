#include "structures/sections/bending_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "runtime/numbers.h"
#include "runtime/text.h"
#include "structures/solvers/arrays.h"

namespace orm {
namespace {

using Stroke = DrawOperation::Stroke;

constexpr Colour kBlack{0, 0, 0}, kBlue{0, 0, 255}, kGreen{0, 255, 0}, kRed{255, 0, 0},
    kWhite{255, 255, 255}, kYellow{255, 255, 0}, kGrey{110, 110, 110};

// What is shown of the plane: somewhat more than 30 by 10, as a stretched bar at its limit draws a
// line of 8 units from the base line.
constexpr double kLeft = 0, kBottom = -0.2, kRight = 32.4, kTop = 10.6;
constexpr double kBase = 23.5;
constexpr double kConcreteUnits = 4, kSteelUnits = 8;  // of the allowed stress
constexpr int kSmall = 8;                              // font size of values
constexpr double kPatch = 0.21;                        // half the height of the patch under a text
constexpr double kHatchStep = 0.2;
constexpr double kLine = 0.58;  // units that a line of small text takes

double TextWidth(const std::string& text, bool bold, const Lavagna& lavagna) {
  const double em = bold ? 0.64 : 0.57;  // of a usual letter
  const double pixels = static_cast<double>(Characters(text)) * kSmall * (96.0 / 72) * em;
  return pixels * (kRight - kLeft) / lavagna.PixelsWide();
}

// Green tells compressed concrete; dots in it tell it on paper and to eyes that miss the green.
void HatchLine(Lavagna& lavagna, double x1, double x2, double y) {
  lavagna.SetColour(kGreen);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(2);
  lavagna.DrawLine(x1, y, x2, y);
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Dotted);
  lavagna.SetWidth(1);
  lavagna.DrawLine(x1, y, x2, y);
}

void OverLimit(Lavagna& lavagna) {
  lavagna.SetColour(kRed);
  lavagna.SetStroke(Stroke::Dashed);
  lavagna.SetWidth(3);
}

void WithinLimit(Lavagna& lavagna) {
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(2);
}

// From what a label tells to the label.
void Leader(Lavagna& lavagna, double x1, double y1, double x2, double y2) {
  lavagna.SetColour(kGrey);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(1);
  lavagna.DrawLine(x1, y1, x2, y2);
}

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

double ScalaDisegno(double H, double W) {
  const double scale = H / 6.0;
  if (W / scale < 15.0) return scale;
  // One cm a unit more at a time, as often as it takes.
  const double widened = scale + std::floor(W / 15.0 - scale);
  return W / widened < 15.0 ? widened : widened + 1.0;
}

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

DisegnoFlessione::DisegnoFlessione(Lavagna& lavagna, double H, double W, bool verificata)
    : lavagna_(lavagna), H_(H), W_(W), Sc_(ScalaDisegno(H, W)) {
  lavagna_.Clear();
  lavagna_.SetScale(kLeft, kBottom, kRight, kTop);
  lavagna_.SetBackground(verificata ? kWhite : kYellow);
  Legenda(verificata);
}

// What the colours mean, for whoever does not see them.
void DisegnoFlessione::Legenda(bool verificata) {
  lavagna_.SetColour(kBlack);
  lavagna_.SetFont(10, true);
  lavagna_.DrawText(0.5, 10.35, verificata ? "SEZIONE VERIFICATA" : "SEZIONE NON VERIFICATA");
  lavagna_.SetFont(kSmall);
  lavagna_.DrawText(13.0, 10.3, "calcestruzzo compresso");
  lavagna_.DrawText(21.5, 10.3, "tensione non ammissibile");
  for (const double y : {9.85, 10.05, 10.25}) HatchLine(lavagna_, 11.4, 12.8, y);
  OverLimit(lavagna_);
  lavagna_.DrawLine(19.6, 10.05, 21.2, 10.05);
}

void DisegnoFlessione::Tratteggia(double bordo, double asse,
                                  const std::function<std::vector<Tratto>(double)>& tratti) {
  const double depth = std::fabs(asse - bordo), toward = asse < bordo ? -1 : 1;
  const int lines = static_cast<int>(depth / Sc_ / kHatchStep);
  for (int i = 0; i <= lines; ++i) {
    const double at = bordo + toward * i * kHatchStep * Sc_;
    for (const Tratto& tratto : tratti(at))
      if (tratto.a > tratto.da) HatchLine(lavagna_, X(tratto.da), X(tratto.a), Y(at));
  }
}

void DisegnoFlessione::AsseNeutro(double profondita) {
  const double y = Y(profondita);
  lavagna_.SetColour(kBlue);
  lavagna_.SetStroke(Stroke::Dashed);
  lavagna_.SetWidth(2);
  lavagna_.DrawLine(0.4, y, 15.6, y);
  Etichetta(13, y + 0.8, "asse neutro", kBlue, false);
}

void DisegnoFlessione::Armature(std::vector<double> profondita, std::vector<double> aree,
                                const std::function<double(double)>& larghezza) {
  OrdinaArray(profondita, aree, 0, static_cast<int>(aree.size()) - 1);
  const double centre = X(W_ / 2);
  std::array<std::vector<double>, 2> heights, areas, marks;
  for (std::size_t i = 0, used = 0; i < aree.size(); ++i) {
    if (aree[i] == 0) continue;
    const double y = Y(profondita[i]);
    const double half = std::min(0.8, 0.4 * larghezza(profondita[i]) / Sc_);
    lavagna_.SetColour(kBlack);
    lavagna_.SetStroke(Stroke::Solid);
    lavagna_.SetWidth(3);
    if (half > 0) lavagna_.DrawLine(centre - half, y, centre + half, y);
    const std::size_t column = used++ % 2;
    heights[column].push_back(y);
    areas[column].push_back(aree[i]);
    marks[column].push_back(half);
  }
  // The far column first: its leaders pass under the labels of the near one.
  for (const std::size_t column : {1u, 0u}) {
    const double x = centre + (column == 0 ? 1.0 : 4.0);
    const auto labels = QuoteEtichette(heights[column], kLine, false, 0.3, 9);
    for (std::size_t i = 0; i < labels.size(); ++i) {
      Leader(lavagna_, centre + marks[column][i], heights[column][i], x - 0.05, labels[i]);
      Etichetta(x, labels[i] + kLine / 2, FormatPattern(areas[column][i], "####.00") + " cmq.",
                kBlack, false);
    }
  }
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
  lavagna_.DrawText(kBase - 3.9, 0.55, "compressione");
  lavagna_.DrawText(kBase + 0.3, 0.55, "trazione");
  for (const TensioneDisegnata& t : tensioni) {
    const Reach reach = ReachOf(t, ammesse);
    const double y = Y(t.profondita), end = kBase + (t.valore < 0 ? -reach.units : reach.units);
    reach.over ? OverLimit(lavagna_) : WithinLimit(lavagna_);
    lavagna_.DrawLine(kBase, y, end, y);
    if (t.cls) {
      lavagna_.SetColour(kBlack);
      lavagna_.DrawText(end - 1.0, y + kLine / 2, "cls");
    }
  }
  // Labels give way from the axis outward, so that none reaches a line of the other sign.
  const bool upperCompressed = std::any_of(tensioni.begin(), tensioni.end(), [&](const auto& t) {
    return t.cls && t.profondita < asse;
  });
  ScriviTensioni(tensioni, ammesse, true, upperCompressed);
  ScriviTensioni(tensioni, ammesse, false, !upperCompressed);
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
  const auto labels = QuoteEtichette(heights, kLine, versoAlto, 0.9, 9);
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const std::string text = FormatPattern(shown[i].valore, "####.0") + " kg/cmq.";
    const bool over = ReachOf(shown[i], ammesse).over;
    const double x = compresse ? kBase + 0.6 : kBase - 0.6 - TextWidth(text, over, lavagna_);
    Leader(lavagna_, kBase, heights[i], compresse ? kBase + 0.5 : kBase - 0.5, labels[i]);
    Etichetta(x, labels[i] + kLine / 2, text, kBlack, over);
  }
}

// Text on a patch of the background, so that it can be read on hatching and outlines.
void DisegnoFlessione::Etichetta(double x, double y, const std::string& testo, Colour colore,
                                 bool grassetto) {
  const double right = x + TextWidth(testo, grassetto, lavagna_), middle = y - kLine / 2;
  lavagna_.SetColour(lavagna_.Background());
  lavagna_.SetStroke(Stroke::Solid);
  lavagna_.SetWidth(1);
  lavagna_.DrawPolygon({{x, middle + kPatch},
                        {right, middle + kPatch},
                        {right, middle - kPatch},
                        {x, middle - kPatch}},
                       true);
  lavagna_.SetColour(colore);
  lavagna_.SetFont(kSmall, grassetto);
  lavagna_.DrawText(x, y, testo);
}

}  // namespace orm
