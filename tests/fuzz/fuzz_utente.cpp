// UTENTE.DAG, the professional's data.
#include "tariff/files/user_files.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  DatiProfessionista dati;
  fuzz::CheckFile(
      place, kFileUtente, fuzz::Text(data, size),
      [&] {
        dati = LeggiDatiProfessionista(place.Folder());
        fuzz::Values values;
        Campi(values, dati);
        return values;
      },
      [&] { ScriviDatiProfessionista(place.Folder(), dati); });
  return 0;
}
