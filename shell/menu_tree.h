// The menu tree of the main window, the case menus built from the table of cases.
#pragma once

#include <vector>

#include "dialogs/main_window.h"

namespace orm {

// The top entries that set the currency when they open.
inline constexpr const char* kMenuUtilita = "Mnu_Utilita_Item";
inline constexpr const char* kMenuLire = "mnu_Parcelle_Item";
inline constexpr const char* kMenuEuro = "mnu_Parcelle_E_Item";

std::vector<MenuItem> BuildMenu();

}  // namespace orm
