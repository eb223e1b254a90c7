// TUS.CFG, the official discount rates, kept by the user with a text editor.
#include "tests/fuzz/file_fuzzer.h"
#include "utilities/interest_rates.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  const std::string_view input = fuzz::Text(data, size);
  place.Put(kFileTus, input);
  try {
    const TabellaTus tabella = LeggiTabellaTus(place.Folder(), {2002, 3, 15});
    fuzz::Require(!tabella.empty() && tabella.size() <= kPeriodiTus, "da uno a cento periodi");
    for (const PeriodoTus& periodo : tabella)
      fuzz::Require(std::isfinite(periodo.Tasso), "il tasso è un numero");
  } catch (const RuntimeFailure& failure) {
    fuzz::Require(failure.File() == kFileTus && !failure.Field().empty() && failure.Line() > 0,
                  "il messaggio nomina file, riga e campo");
  }
  fuzz::Require(place.Folder().Read(kFileTus) == input, "il file resta com'era");
  return 0;
}
