// CAC.CFG, the steps of the accessory compensations, kept by the user with a text editor: read, and
// looked up over amounts of every size.
#include "tariff/config/compensation_steps.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  const std::string_view input = fuzz::Text(data, size);
  place.Put("CAC.CFG", input);
  for (const double importo : {0.0, 1.0, 15e6, 99999999999.0}) {
    try {
      const double percentuale =
          ScaglioniCompensi(place.Folder()).PercCompensiAccessoriCfg(importo);
      fuzz::Require(importo != 0 || percentuale == 0, "senza lavori non c'è percentuale");
    } catch (const RuntimeFailure& failure) {
      fuzz::Require(failure.File() == "CAC.CFG" && !failure.Field().empty() && failure.Line() > 0,
                    "il messaggio nomina file, riga e campo");
      break;
    }
  }
  fuzz::Require(place.Folder().Read("CAC.CFG") == input, "il file resta com'era");
  return 0;
}
