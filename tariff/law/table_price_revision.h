// The part of the design fee that the revision of stability calculations is reckoned on.
//
// Art. 19-f of the tariff of Legge 2-3-1949 n. 143: the share of the detailed design in Table B
// ("CS1") and in the tables of D.M. 4-4-2001 ("CS2").
#pragma once

#include <array>
#include <string_view>

namespace orm {

struct AliquotaCos {
  std::string_view classe;
  std::string_view categorie;  // empty: any
  double cs1, cs2;
};

// A class and category without a row has none.
inline constexpr std::array<AliquotaCos, 13> kAliquoteRevisione = {{
    {"1", "abcd", 0.25, 0.05},
    {"1", "e", 0.28, 0.06},
    {"1", "fg", 0.28, 0.16},
    {"2", "", 0.22, 0.04},
    {"3", "", 0.22, 0.15},
    {"4", "", 0.18, 0.04},
    {"5", "", 0.30, 0.06},
    {"6", "", 0.15, 0.04},
    {"7", "a", 0.15, 0.04},
    {"7", "b", 0.135, 0.04},
    {"7", "c", 0.12, 0.04},
    {"8", "", 0.15, 0.10},
    {"9", "", 0.20, 0.06},
}};

}  // namespace orm
