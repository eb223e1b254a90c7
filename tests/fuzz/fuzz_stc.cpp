// INP_STC.DAP, a condition survey.
#include "cases/stc/data.h"
#include "cases/stc/stc.h"
#include "tariff/config/price_index.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiStc>(data, size, [](orm::RunState& stato) {
    orm::fuzz::Install(stato.folder, "IND.CFG");
    return orm::CalcolaDaFile<orm::CalcoloStc>(stato);
  });
}
