// Pens of the drawings of sections.
#pragma once

#include "dialogs/lavagna.h"

namespace orm {

using Stroke = DrawOperation::Stroke;
using Anchor = DrawOperation::Anchor;

inline constexpr Colour kBlack{0, 0, 0}, kBlue{0, 0, 255}, kGreen{0, 255, 0}, kRed{255, 0, 0},
    kWhite{255, 255, 255}, kYellow{255, 255, 0}, kGrey{110, 110, 110};
inline constexpr int kSmall = 8;  // font size of values

inline void OverLimit(Lavagna& lavagna) {
  lavagna.SetColour(kRed);
  lavagna.SetStroke(Stroke::Dashed);
  lavagna.SetWidth(3);
}

inline void WithinLimit(Lavagna& lavagna) {
  lavagna.SetColour(kBlack);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(2);
}

// From what a label tells to the label.
inline void Leader(Lavagna& lavagna, double x1, double y1, double x2, double y2) {
  lavagna.SetColour(kGrey);
  lavagna.SetStroke(Stroke::Solid);
  lavagna.SetWidth(1);
  lavagna.DrawLine(x1, y1, x2, y2);
}

}  // namespace orm
