// INP_COA.DAP, a testing note; its compensations come in each of the four ways.
#include <array>

#include "cases/coa/coa.h"
#include "cases/coa/data.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static constexpr std::array kTipi = {"CALCOLATA", "ASSEGNATA", "CALABRIA", "NUOVA TARIFFA"};
  return fuzz::CheckNote<DatiCoa>(data, size, [size](RunState& stato) {
    fuzz::Install(stato.folder, "CAC.CFG");
    stato.criteri.TipoPercentualeCompensi = kTipi[size % kTipi.size()];
    stato.criteri.DecimaliTabelle = stato.criteri.DecimaliCompensi =
        static_cast<std::uint8_t>(size % 10);
    return CalcolaDaFile<CalcoloCoa>(stato);
  });
}
