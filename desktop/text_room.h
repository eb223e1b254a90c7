// How much a text may hold that a window shows and a file keeps.
#pragma once

#include <cstddef>

#include "runtime/folder.h"

namespace orm {

// Bytes; pasting counts characters, and what those of several bytes add is found at the save.
struct TextRoom {
  std::size_t whole = 0, line = 0;
  int lines = 0;
};

// A file of text. A longer line, as it is shown, or more lines would keep the window busy for
// seconds.
inline constexpr TextRoom kTextRoom{WorkFolder::kLargestFile, 10'000, 100'000};

}  // namespace orm
