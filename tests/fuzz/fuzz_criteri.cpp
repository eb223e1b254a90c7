// CRITERI.PER, the criteria of calculation.
#include "shell/personal/settings.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  static fuzz::Nobody nobody;
  RunState stato(nobody, place.Folder());
  fuzz::CheckFile(
      place, kFileCriteri, fuzz::Text(data, size),
      [&] {
        LeggiCriteri(stato);
        fuzz::Values values;
        Campi(values, stato.criteri);
        return values;
      },
      [&] { ScriviCriteri(stato.folder, stato.criteri); });
  return 0;
}
