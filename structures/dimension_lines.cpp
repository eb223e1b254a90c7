#include "structures/dimension_lines.h"

#include <cmath>

namespace orm {
namespace {

using Anchor = DrawOperation::Anchor;

constexpr Colour kBlack{0, 0, 0}, kThin{70, 90, 130};
constexpr double kGap = 0.5, kBeyond = 0.8;  // of witness lines, in ticks

// What is drawn while it lives belongs to the measures.
class Misura {
 public:
  explicit Misura(Lavagna& lavagna) : lavagna_(lavagna), before_(lavagna.SetMeasure(true)) {}
  ~Misura() { lavagna_.SetMeasure(before_); }
  Misura(const Misura&) = delete;
  Misura& operator=(const Misura&) = delete;

 private:
  Lavagna& lavagna_;
  bool before_;
};

}  // namespace

void Quote::Penna() const {
  lavagna_.SetColour(kThin);
  lavagna_.SetStroke(DrawOperation::Stroke::Solid);
  lavagna_.SetWidth(1);
}

void Quote::Riga(Point da, Point a) const {
  const Misura misura(lavagna_);
  Penna();
  lavagna_.DrawLine(da.x, da.y, a.x, a.y);
  for (const Point& p : {da, a})
    lavagna_.DrawLine(p.x - tacca_, p.y - tacca_, p.x + tacca_, p.y + tacca_);
}

void Quote::Richiamo(Point oggetto, Point quota) const {
  const double length = std::hypot(quota.x - oggetto.x, quota.y - oggetto.y);
  if (length <= kGap * tacca_) return;
  const double dx = (quota.x - oggetto.x) / length * tacca_;
  const double dy = (quota.y - oggetto.y) / length * tacca_;
  const Misura misura(lavagna_);
  Penna();
  lavagna_.DrawLine(oggetto.x + kGap * dx, oggetto.y + kGap * dy, quota.x + kBeyond * dx,
                    quota.y + kBeyond * dy);
}

void Quote::Nome(double x, double y, const std::string& testo, Anchor anchor, bool upright) const {
  const Misura misura(lavagna_);
  lavagna_.SetColour(kBlack);
  const bool halo = lavagna_.SetHalo(true);  // lines of other measures may pass here
  lavagna_.DrawText(x, y, testo, anchor, upright);
  lavagna_.SetHalo(halo);
}

void Quote::Freccia(double x1, double y1, double x2, double y2) const {
  Penna();
  lavagna_.DrawLine(x1, y1, x2, y2);
  lavagna_.DrawDisc(x2, y2, tacca_ / 3);
}

void Quote::Centrato(double x, double y, const std::string& testo) const {
  lavagna_.SetColour(kBlack);
  lavagna_.DrawText(x, y, testo, Anchor::Centre);
}

void Quote::Orizzontale(double x1, double x2, double y, const std::string& nome,
                        std::optional<double> daY, std::optional<double> nomeX) const {
  Riga({x1, y}, {x2, y});
  if (daY)
    for (const double x : {x1, x2}) Richiamo({x, *daY}, {x, y});
  const bool below = daY && *daY > y;
  Nome(nomeX.value_or((x1 + x2) / 2), below ? y - tacca_ / 2 : y + tacca_ / 2, nome,
       below ? Anchor::Below : Anchor::Above);
}

void Quote::Verticale(double x, double y1, double y2, const std::string& nome,
                      std::optional<double> daX, std::optional<double> nomeY) const {
  Riga({x, y1}, {x, y2});
  if (daX)
    for (const double y : {y1, y2}) Richiamo({*daX, y}, {x, y});
  const bool left = daX && *daX > x;
  const bool tight = std::abs(y2 - y1) < lavagna_.LineHeight() + 2 * tacca_;
  const double away = tacca_ * (tight ? 2 : 1.3);
  Nome(left ? x - away : x + away, nomeY.value_or((y1 + y2) / 2), nome,
       left ? Anchor::Right : Anchor::Left);
}

}  // namespace orm
