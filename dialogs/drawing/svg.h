// A drawing as SVG: what a browser, a word processor and a program for vector graphics open.
#pragma once

#include <string>

#include "dialogs/lavagna.h"

namespace orm {

// `pixelsWide` at 96 to the inch; 0 is its size at 100 %.
std::string SvgOf(const Lavagna& lavagna, int pixelsWide = 0);

}  // namespace orm
