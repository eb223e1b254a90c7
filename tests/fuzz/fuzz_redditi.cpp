// REDDITI.PER, the incomes of the pension.
#include "tests/fuzz/file_fuzzer.h"
#include "utilities/pension_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  FileRedditi dati;
  fuzz::CheckFile(
      place, kFileRedditi, fuzz::Text(data, size),
      [&] {
        dati = LeggiRedditi(place.Folder());
        fuzz::Values values;
        TestataRedditi& t = dati.testata;
        values.Line(Field("1", t.primaData), Field("2", t.secondaData), Field("3", t.terzo),
                    Field("4", t.numero));
        for (auto& reddito : dati.redditi) values.Line(Field("reddito", reddito));
        return values;
      },
      [&] { ScriviRedditi(place.Folder(), dati); });
  return 0;
}
