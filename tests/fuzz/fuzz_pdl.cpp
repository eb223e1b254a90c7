// INP_PDL.DAP, lots, rows and variation reports.
#include "cases/pdl/data.h"
#include "cases/pdl/pdl.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiPdl>(data, size, orm::CalcolaDaFile<orm::CalcoloPdl>);
}
