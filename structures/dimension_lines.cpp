#include "structures/dimension_lines.h"

#include "runtime/text.h"

namespace orm {
namespace {
constexpr Colour kBlack{0, 0, 0}, kGrey{110, 110, 110};
constexpr double kTick = 0.5;  // half its length, in letters
}  // namespace

void Quote::Segna() const {
  lavagna_.SetColour(kGrey);
  lavagna_.SetStroke(DrawOperation::Stroke::Solid);
  lavagna_.SetWidth(1);
}

void Quote::Centrato(double x, double y, const std::string& testo) const {
  lavagna_.SetColour(kBlack);
  lavagna_.DrawText(x - static_cast<double>(Characters(testo)) * lettera_ / 2, y, testo);
}

void Quote::Orizzontale(double x1, double x2, double y, const std::string& nome) const {
  Segna();
  lavagna_.DrawLine(x1, y, x2, y);
  const double tick = kTick * lettera_;
  for (const double x : {x1, x2}) lavagna_.DrawLine(x - tick, y - tick, x + tick, y + tick);
  Centrato((x1 + x2) / 2, y + Riga(), nome);
}

void Quote::Verticale(double x, double y1, double y2, const std::string& nome) const {
  Segna();
  lavagna_.DrawLine(x, y1, x, y2);
  const double tick = kTick * lettera_;
  for (const double y : {y1, y2}) lavagna_.DrawLine(x - tick, y - tick, x + tick, y + tick);
  lavagna_.SetColour(kBlack);
  lavagna_.DrawText(x + lettera_ / 2, (y1 + y2) / 2 + Riga() / 2, nome);
}

}  // namespace orm
