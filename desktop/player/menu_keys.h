// Keys for the captions of a menu, which come without: each caption gets one of its own letters or
// digits, as long as there is one that no other caption of the menu has.
#pragma once

#include <string>
#include <vector>

namespace orm {

// The captions with '&' before the letter that is their key; an '&' of the text itself is doubled.
std::vector<std::string> MenuKeys(const std::vector<std::string>& captions);

}  // namespace orm
