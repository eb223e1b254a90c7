// INP_GEO.DAP, the groups of a note of geotechnical services.
#include "cases/geo/config.h"
#include "cases/geo/data.h"
#include "cases/geo/geo.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiGeotecnici>(data, size, [](orm::RunState& stato) {
    orm::fuzz::Install(stato.folder, "GEO.CFG");
    return orm::CalcolaDaFile<orm::CalcoloGEO>(stato);
  });
}
