// INP_CS1.DAP, a note of static testing; every other one by the tables of 2001.
#include "cases/cos/config.h"
#include "cases/cos/cos.h"
#include "cases/cos/data.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiCos>(data, size, [size](orm::RunState& stato) {
    orm::fuzz::Install(stato.folder, "CS1.CFG");
    orm::fuzz::Install(stato.folder, "CS2.CFG");
    stato.CasoDiParcella = size % 2 == 0 ? "CS1" : "CS2";
    return orm::CalcolaDaFile<orm::CalcoloCos>(stato);
  });
}
