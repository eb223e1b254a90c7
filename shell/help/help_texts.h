// The pages of the help as they are written, inside the program: no installation can lack them.
#pragma once

#include <span>
#include <string_view>

namespace orm {

struct HelpText {
  std::string_view file;  // "manuale/coa.md"
  std::string_view text;  // Markdown, UTF-8
};

std::span<const HelpText> HelpTexts();

}  // namespace orm
