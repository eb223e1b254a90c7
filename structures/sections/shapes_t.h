// The four shapes of frmVER_FLESS_T1: what each has, and the example that it is shown with.
#pragma once

#include <array>
#include <cstddef>

namespace orm {

// A layer of the example: row from 1 to 8, bars, distance from the upper edge in cm.
struct StratoEsempio {
  std::size_t strato;
  const char* ferri;
  double distanza;
};

struct FormaT {
  const char* nome;  // as the person chooses it
  bool alaSuperiore, alaInferiore;
  const char* nomeAnima;                // of the web's thickness
  double CD_01;                         // kg x m
  std::array<double, 6> geometria;      // CD_02 to CD_07, cm
  std::array<StratoEsempio, 4> strati;  // those not used have row 0
};

inline constexpr const char* kSpessoreAnima = "Spessore anima [cm.]";

inline constexpr std::array<FormaT, 4> kFormeT = {{
    {"Rettangolare",
     false,
     false,
     "Base [cm.]",
     5000,
     {0, 30, 0, 80, 0, 0},
     {{{1, "3D16", 3}, {4, "3D16+1D12", 77}}}},
    {"a T",
     true,
     false,
     kSpessoreAnima,
     8000,
     {100, 30, 0, 80, 15, 0},
     {{{1, "3D16", 3}, {2, "2D12", 11}, {4, "4D16+1D12", 77}}}},
    {"a T rovescia",
     false,
     true,
     kSpessoreAnima,
     3000,
     {0, 30, 90, 80, 0, 15},
     {{{1, "3D16", 3}, {3, "2D12", 68}, {4, "2D16+2D12", 77}}}},
    {"Doppia T",
     true,
     true,
     kSpessoreAnima,
     7200,
     {100, 30, 60, 80, 20, 15},
     {{{1, "3D16", 3}, {2, "2D14", 17}, {3, "2D12", 68}, {4, "1D16+4D12", 77}}}},
}};

}  // namespace orm
