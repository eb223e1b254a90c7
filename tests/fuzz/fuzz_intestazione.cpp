// INT_<case>.DAP, the header of a fee note.
#include "tariff/files/user_files.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  const std::string name = "INT_PPE.DAP";
  Intestazione dati;
  fuzz::CheckFile(
      place, name, fuzz::Text(data, size),
      [&] {
        dati = LeggiIntestazione(place.Folder(), name);
        fuzz::Values values;
        Campi(values, dati);
        return values;
      },
      [&] { ScriviIntestazione(place.Folder(), name, dati); });
  return 0;
}
