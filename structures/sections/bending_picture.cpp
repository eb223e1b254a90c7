#include "structures/sections/bending_picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "runtime/numbers.h"
#include "structures/sections/picture_pens.h"
#include "structures/solvers/arrays.h"

namespace orm {
namespace {

// What is shown of the plane: more than 30 by 10, for the dimension lines around the section and as
// a stretched bar at its limit draws a line of 8 units from the base line.
constexpr double kLeft = -4.6, kLeftOfFlanges = -7.4, kBottom = -1.6, kRight = 32.4, kTop = 11.4;
constexpr double kTitle = 10.9, kSecondLine = 9.9;  // middle of what stands above the drawing
constexpr double kSample = 18.6;                    // of the legend
constexpr double kNameOfAxis = 13;                  // where it begins
constexpr double kBeside = 0.8;                     // from the edge of a section to it
constexpr double kHatchStep = 0.2;
constexpr const char* kAsseNeutro = "asse neutro";

// Green tells compressed concrete; dots in it tell it on paper and to eyes that miss the green.
void HatchLine(Lavagna& lavagna, double x1, double x2, double y) {
  lavagna.SetHatching(true);
  lavagna.SetColour(kGreen);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(2);
  lavagna.DrawLine(x1, y, x2, y);
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Dotted);
  lavagna.SetWidth(1);
  lavagna.DrawLine(x1, y, x2, y);
  lavagna.SetHatching(false);
}

struct Strato {
  double y, half, area;  // of the mark
  double x, quota;       // where its label belongs
  double bordo;          // left edge of the section
};

// Three or more layers nearer to each other than their labels have these in one column, as the line
// to one further on would go through its neighbour. They give way from the edge of the section.
void Incolonna(std::vector<Strato>& strati, double riga, double colonna, double mezzo) {
  for (std::size_t from = 0, to = 0; from < strati.size(); from = to) {
    std::vector<double> heights{strati[from].y};
    for (to = from + 1; to < strati.size() && heights.back() - strati[to].y < riga / 2; ++to)
      heights.push_back(strati[to].y);
    const bool rings = std::any_of(strati.begin() + static_cast<std::ptrdiff_t>(from),
                                   strati.begin() + static_cast<std::ptrdiff_t>(to),
                                   [](const Strato& s) { return s.half == 0; });
    if (heights.size() < 3 || rings) continue;
    heights = QuoteEtichette(heights, riga, heights.front() < mezzo, 0.6, 9);
    for (std::size_t i = from; i < to; ++i) {
      strati[i].x = colonna;
      strati[i].quota = heights[i - from];
    }
  }
}

}  // namespace

double ScalaDisegno(double H, double W) {
  const double scale = H / 6.0;
  if (W / scale < 15.0) return scale;
  // One cm a unit more at a time, as often as it takes.
  const double widened = scale + std::floor(W / 15.0 - scale);
  return W / widened < 15.0 ? widened : widened + 1.0;
}

DisegnoFlessione::DisegnoFlessione(Lavagna& lavagna, double H, double W, bool spessori,
                                   bool verificata, Tratti tratti)
    : lavagna_(lavagna),
      H_(H),
      W_(W),
      Sc_(ScalaDisegno(H, W)),
      sinistra_(spessori ? kLeftOfFlanges : kLeft),
      tratti_(std::move(tratti)),
      posti_(-0.4, 9, 22.9,  // above what stands at the foot, left of where the stresses begin
             [this](double y) {
               std::vector<double> edges;
               const double depth = H_ - (y - 1) * Sc_;
               if (depth < 0 || depth > H_) return edges;
               for (const Tratto& tratto : tratti_(depth)) {
                 edges.push_back(X(tratto.da));
                 edges.push_back(X(tratto.a));
               }
               return edges;
             }),
      quote_(lavagna, 0.22) {
  lavagna_.Clear();
  lavagna_.SetScale(sinistra_, kBottom, kRight, kTop);
  lavagna_.SetBackground(verificata ? kWhite : kYellow);
  lavagna_.BeginView({Sc_, {1, 1}});
  Legenda(verificata);
}

// What the colours mean, for whoever does not see them.
void DisegnoFlessione::Legenda(bool verificata) {
  lavagna_.SetColour(kBlack);
  lavagna_.SetFont(10, true);
  lavagna_.DrawVerdict(sinistra_ + 0.4, kTitle, verificata ? kVerificata : kNonVerificata,
                       Anchor::Left);
  lavagna_.SetFont(kSmall);
  lavagna_.DrawText(kSample + 1.8, kTitle, "calcestruzzo compresso", Anchor::Left);
  lavagna_.DrawText(kSample + 1.8, kSecondLine, "tensione non ammissibile", Anchor::Left);
  lavagna_.DrawText(sinistra_ + 0.4, kBottom + 0.55, "quote in cm", Anchor::Left);
  for (const double y : {kTitle - 0.2, kTitle, kTitle + 0.2})
    HatchLine(lavagna_, kSample, kSample + 1.4, y);
  OverLimit(lavagna_);
  lavagna_.DrawLine(kSample, kSecondLine, kSample + 1.4, kSecondLine);
}

// The arrow turns as the moment does on the right face of a beam: compression, left of the base
// line, lies where it points to the left.
void DisegnoFlessione::Momento(double kgxcm) {
  constexpr double kRadius = 0.34;
  const bool positive = kgxcm > 0;
  const double x = sinistra_ + 0.8, y = kSecondLine, tip = positive ? y + kRadius : y - kRadius;
  lavagna_.SetColour(kBlack);
  lavagna_.SetStroke(Stroke::Solid);
  lavagna_.SetWidth(1);
  lavagna_.DrawArc(x, y, kRadius, -90, 90);
  lavagna_.DrawPolygon({{x - 0.35, tip}, {x, tip + 0.16}, {x, tip - 0.16}}, true);
  lavagna_.SetFont(kSmall);
  lavagna_.DrawText(x + 0.8, y,
                    "M = " + FormatPattern(kgxcm / 100, "#,##0.##") +
                        " Kg x m  (fibre tese: " + (positive ? "inferiori)" : "superiori)"),
                    Anchor::Left);
}

void DisegnoFlessione::Tratteggia(double bordo, double asse) {
  const double depth = std::fabs(asse - bordo), toward = asse < bordo ? -1 : 1;
  const int lines = static_cast<int>(depth / Sc_ / kHatchStep);
  for (int i = 0; i <= lines; ++i) {
    const double at = bordo + toward * i * kHatchStep * Sc_;
    for (const Tratto& tratto : tratti_(at))
      if (tratto.a > tratto.da) HatchLine(lavagna_, X(tratto.da), X(tratto.a), Y(at));
  }
}

void DisegnoFlessione::AsseNeutro(double profondita) {
  asse_ = profondita;
  const double y = Y(profondita);
  lavagna_.SetColour(kBlue);
  lavagna_.SetStroke(Stroke::Dashed);
  lavagna_.SetWidth(2);
  // That of a wide section goes on under its name.
  const double end = X(W_) > kNameOfAxis ? X(W_) + kBeside + 2.6 : 15.6;
  lavagna_.DrawLine(0.4, y, end, y);
  posti_.Riga(0.4, end, y);
}

// Above the line at 13, or beside a section that reaches as far; where a stress stands there, the
// nearest free place, in the section or out of it.
PostiEtichette::Richiesta DisegnoFlessione::NomeAsse() const {
  const double width = lavagna_.TextWidth(kAsseNeutro), height = 0.9 * lavagna_.LineHeight();
  const double within = X(W_) - width - 0.3;
  const double beside = X(W_) > kNameOfAxis ? X(W_) + kBeside : kNameOfAxis;
  return {{beside, within}, Y(asse_) + 0.8, width, height, {}};
}

void DisegnoFlessione::Armature(std::vector<double> profondita, std::vector<double> aree,
                                const std::function<double(double)>& larghezza) {
  OrdinaArray(profondita, aree, 0, static_cast<int>(aree.size()) - 1);
  const double centre = X(W_ / 2);
  std::vector<Strato> strati;
  for (std::size_t i = 0; i < aree.size(); ++i) {
    if (aree[i] == 0) continue;
    const double y = Y(profondita[i]);
    const double half = std::min(0.8, 0.4 * larghezza(profondita[i]) / Sc_);
    lavagna_.SetColour(kBlack);
    lavagna_.SetStroke(Stroke::Solid);
    lavagna_.SetWidth(3);
    if (half > 0) lavagna_.DrawLine(centre - half, y, centre + half, y);
    const auto tratti = tratti_(profondita[i]);
    strati.push_back({y, half, aree[i], centre + (strati.size() % 2 == 0 ? 1.0 : 4.0), y,
                      tratti.empty() ? 1 : X(tratti.front().da)});
  }
  lavagna_.SetFont(kSmall);
  Incolonna(strati, 0.92 * lavagna_.LineHeight(), centre + 1, Y(H_ / 2));
  std::vector<PostiEtichette::Richiesta> richieste{NomeAsse()};
  std::vector<EtichettaPosta> etichette;
  for (const Strato& strato : strati) {
    const std::string text = FormatPattern(strato.area, "####.00") + " cmq.";
    const Point mark{centre + strato.half, strato.y};
    const double width = lavagna_.TextWidth(text);
    richieste.push_back({{strato.x}, strato.quota, width, 0.9 * lavagna_.LineHeight(), mark});
    etichette.push_back({mark, {}, text});
    // Beside a web there may be room on the left of it, too.
    const double left = strato.bordo - 0.4 - width;
    if (left > 1) richieste.back().inizi.push_back(left);
  }
  const std::vector<Riquadro> posti = posti_.Posti(richieste);
  for (std::size_t i = 0; i < etichette.size(); ++i) etichette[i].posto = posti[i + 1];
  Districa(etichette);
  for (EtichettaPosta& e : etichette) {
    const double toward = e.posto.x2 < e.segno.x ? -1 : 1;
    if (toward < 0) e.segno.x = 2 * centre - e.segno.x;  // the other end of the mark
    Leader(lavagna_, e.segno.x, e.segno.y, e.Attacco().x - toward * 0.05, e.Attacco().y);
  }
  // After the leaders, as some pass under a label.
  lavagna_.SetHalo(true);
  lavagna_.SetColour(kBlue);
  lavagna_.DrawText(posti[0].x1, (posti[0].y1 + posti[0].y2) / 2, kAsseNeutro, Anchor::Left);
  lavagna_.SetColour(kBlack);
  for (const EtichettaPosta& e : etichette)
    lavagna_.DrawText(e.Attacco().x, e.Attacco().y, e.testo,
                      e.posto.x2 < e.segno.x ? Anchor::Right : Anchor::Left);
  lavagna_.SetHalo(false);
}

}  // namespace orm
