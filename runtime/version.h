// The version of the program, which stands in one place: the project() of CMakeLists.txt.
#pragma once

#include <string_view>

namespace orm {

extern const std::string_view kVersione;  // "3.02.02"

}  // namespace orm
