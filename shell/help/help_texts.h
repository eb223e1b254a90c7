// The pages of the help and the texts of the programs as they are written, inside the program: no
// installation can lack them.
#pragma once

#include <span>
#include <string_view>

namespace orm {

struct HelpText {
  std::string_view file;  // "manuale/coa.md", "programs/orm2002.txt"
  std::string_view text;  // UTF-8; of the help Markdown
};

std::span<const HelpText> HelpTexts();
std::span<const HelpText> ProgramTexts();

}  // namespace orm
