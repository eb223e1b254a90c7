// Reinforcement written as count, the letter D and diameter in mm, groups joined by "+":
// "2D16+2D12". Blanks are ignored and "d" is "D".
#pragma once

#include <string_view>
#include <vector>

namespace orm {

struct BarGroup {
  int count = 0, diameter = 0;  // mm
};

// The groups as they are written; none for a text that is not of the form.
std::vector<BarGroup> BarGroups(std::string_view text);

// Sum of n x pi x (diameter / 20)^2 in cmq, not rounded; 0 for an empty text, "0", or a text that
// is not of the form.
double BarsArea(std::string_view text);

bool IsBarsText(std::string_view text);  // of the form, empty or "0"
// Written with the characters of the form alone: what is typed over or deleted in the middle is not
// of the form for a while.
bool AdmitsBarsDraft(std::string_view text);

}  // namespace orm
