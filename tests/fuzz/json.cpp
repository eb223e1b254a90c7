// A note as JSON: files that come back, or a failure that names the file and leaves the folder.
#include "interchange/interchange.h"
#include "tests/fuzz/fuzzer.h"

namespace orm::fuzz {
namespace {

void NotaInJson(std::string_view input) {
  const std::vector<std::string> before = Place().Names();
  std::vector<std::string> names;
  try {
    names = ScriviDaJson(Place(), "nota.json", input);
  } catch (const RuntimeFailure& failure) {
    Require(failure.File() == "nota.json", "il messaggio nomina il file");
    Require(Place().Names() == before, "la cartella resta com'era");
    return;
  }
  std::vector<std::string> written;
  for (const std::string& name : names) written.push_back(Place().Read(name));
  const std::string code = names[0].substr(4, 3);
  const bool lire = names[0].size() == std::string("INT_PPE.DAP").size();
  std::string json;
  try {
    json = ParcellaInJson(Place(), code, lire, {2002, 3, 15});
  } catch (const RuntimeFailure&) {
    return;  // data that cannot be reckoned, or no professional in the folder
  }
  ScriviDaJson(Place(), "nota.json", json);
  for (std::size_t i = 0; i < names.size(); ++i)
    Require(Place().Read(names[i]) == written[i], "i file tornano uguali");
}

}  // namespace

Formats JsonFormats() { return {{"json", NotaInJson}}; }

}  // namespace orm::fuzz
