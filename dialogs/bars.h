// Reinforcement written as count, the letter D and diameter in mm, groups joined by "+":
// "2D16+2D12". Blanks are ignored and "d" is "D".
#pragma once

#include <string_view>

namespace orm {

// Sum of n x pi x (diameter / 20)^2 in cmq, not rounded; 0 for an empty text, "0", or a text that
// is not of the form.
double BarsArea(std::string_view text);

bool IsBarsText(std::string_view text);  // of the form, empty or "0"
// Written with the characters of the form alone: what is typed over or deleted in the middle is not
// of the form for a while.
bool AdmitsBarsDraft(std::string_view text);

}  // namespace orm
