// INP_SC1.DAP, the lots of a note of site safety; every other one by the decree of 2001.
#include "cases/sic/data.h"
#include "cases/sic/sic.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiSicurezza>(data, size, [size](orm::RunState& stato) {
    stato.CasoDiParcella = size % 2 == 0 ? "SC1" : "SC2";
    return orm::CalcolaDaFile<orm::CalcoloSIC>(stato);
  });
}
