// A drawing as DXF of release 12, which every drafting program reads.
#pragma once

#include <string>

#include "dialogs/lavagna.h"

namespace orm {

// In cm. What stands in a view has its true measures; the views keep their places beside each
// other, and what belongs to none is drawn as large as the view of the largest scale. A drawing
// without views has the units of its panel. Letters are those of Windows-1252.
std::string DxfOf(const Lavagna& lavagna);

}  // namespace orm
