// IND.CFG, CS1.CFG and GEO.CFG, kept by the user with a text editor: read as each of the three, and
// looked up.
#include "cases/cos/config.h"
#include "cases/geo/config.h"
#include "tariff/config/price_index.h"
#include "tests/fuzz/file_fuzzer.h"

namespace {

// An answer, or a message that names the file.
template <class Lookup>
void Check(const orm::fuzz::FuzzFolder& place, const char* name, std::string_view input,
           Lookup&& lookup) {
  place.Put(name, input);
  try {
    lookup();
  } catch (const orm::RuntimeFailure& failure) {
    orm::fuzz::Require(failure.File() == name, "il messaggio nomina il file");
  }
  orm::fuzz::Require(place.Folder().Read(name) == input, "il file resta com'era");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  const std::string_view input = fuzz::Text(data, size);
  Check(place, "IND.CFG", input,
        [] { IndiciFoi(place.Folder()).PercentualeRivalutazione(6, 1999); });
  Check(place, "CS1.CFG", input, [] {
    LeggiTestataCos(place.Folder(), "CS1");
    for (const std::size_t periodo : {0U, 4U}) {
      const PeriodoCos p = LeggiPeriodoCos(place.Folder(), "CS1", periodo);
      for (const double lire : {1.0, 15e6, 99999999999.0}) p.OnorarioA(lire);
    }
  });
  Check(place, "GEO.CFG", input, [] {
    const TabelleGeo t = LeggiTabelleGeo(place.Folder(), 1);
    for (const double lire : {1.0, 15e6, 99999999999.0})
      fuzz::Require(t.Percentuale(3, lire) >= 0, "la percentuale non scende sotto zero");
  });
  return 0;
}
