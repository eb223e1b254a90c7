// INP_PPE.DAP, the counts of an expropriation note.
#include "cases/ppe/data.h"
#include "cases/ppe/ppe.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiPpe>(data, size, orm::CalcolaDaFile<orm::CalcoloPpe>);
}
