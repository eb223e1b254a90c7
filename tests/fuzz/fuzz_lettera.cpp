// LETTERA.DAG, the data of the letter to the Order.
#include "shell/letter/letter.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  DatiLettera dati;
  fuzz::CheckFile(
      place, kFileLettera, fuzz::Text(data, size),
      [&] {
        dati = LeggiLettera(place.Folder());
        fuzz::Values values;
        Campi(values, dati);
        return values;
      },
      [&] { ScriviLettera(place.Folder(), dati); });
  return 0;
}
