// The C locale as an Italian desktop leaves it: the toolkit sets it from the environment when it
// starts, and with it the decimal mark of every routine that depends on it. Asked for by the
// variable ORM_TEST_LOCALE; see tests/italian_locale.sh.
#include <clocale>
#include <cstdlib>
#include <iostream>
#include <locale>

namespace {

const bool kSet = [] {
  if (std::getenv("ORM_TEST_LOCALE") == nullptr) return false;
  const bool known = std::setlocale(LC_ALL, "") != nullptr;
  if (!known || *std::localeconv()->decimal_point != ',') {
    std::cerr << "La lingua del sistema non ha la virgola decimale.\n";
    std::exit(1);
  }
  std::locale::global(std::locale(""));
  return true;
}();

}  // namespace
