// The part of the design fee that the updating of prices is paid with, by class and category.
//
// Aliquots of Table B of Legge 2-3-1949 n. 143 for the detailed estimate.
#pragma once

#include <array>
#include <string_view>

namespace orm {

struct AliquotaAgp {
  std::string_view classe;
  std::string_view categorie;  // empty: any
  double aliquota;
};

// The first row that fits counts.
inline constexpr std::array<AliquotaAgp, 12> kAliquoteAgp = {{
    {"1", "abcd", 0.10},
    {"1", "", 0.08},
    {"2", "", 0.10},
    {"3", "", 0.10},
    {"4", "", 0.07},
    {"5", "", 0.07},
    {"6", "", 0.12},
    {"7", "a", 0.05},
    {"7", "b", 0.045},
    {"7", "", 0.04},
    {"8", "", 0.05},
    {"9", "", 0.05},
}};

}  // namespace orm
