// Light and dark colours of the viewer.
#pragma once

namespace orm {

enum class Theme { System, Light, Dark };

// Gives the whole application the colours of the theme.
void ApplyTheme(Theme theme);

}  // namespace orm
