// INP_ESL.DAP, the lots of a note of public works.
#include "cases/esl/data.h"
#include "cases/esl/esl.h"
#include "tests/fuzz/note_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return orm::fuzz::CheckNote<orm::DatiEsl>(data, size, orm::CalcolaDaFile<orm::CalcoloEsl>);
}
