// INP_AGP.DAP, the lots of a note of price updating.
#include "cases/agp/agp.h"
#include "cases/agp/data.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiAgp>(data, size, orm::CalcolaDaFile<orm::CalcoloAgp>);
}
