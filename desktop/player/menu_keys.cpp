#include "desktop/player/menu_keys.h"

#include <cctype>
#include <set>

namespace orm {

std::vector<std::string> MenuKeys(const std::vector<std::string>& captions) {
  std::set<int> taken;
  std::vector<std::string> keyed;
  for (const std::string& caption : captions) {
    std::string out;
    bool found = false;
    for (const char c : caption) {
      const auto byte = static_cast<unsigned char>(c);
      const bool plain = byte < 0x80 && std::isalnum(byte) != 0;
      if (!found && plain && taken.insert(std::toupper(byte)).second) {
        found = true;
        out += '&';
      }
      out += c == '&' ? "&&" : std::string(1, c);
    }
    keyed.push_back(out);
  }
  return keyed;
}

}  // namespace orm
