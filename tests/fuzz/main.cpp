// fuzz_dati FORMAT ...: one fuzzer for each format of a file and for what a person types.
#include <cstdint>

#include "tests/fuzz/fuzzer.h"

namespace {

std::function<void(std::string_view)> check;

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** words) {
  using namespace orm::fuzz;
  Require(*count > 1, "uso: fuzz_dati FORMATO [ALTRO...]");
  for (const Formats& formats : {TextFormats(), FileFormats(), TableFormats(), NoteFormats(),
                                 SavedFormats(), JobFormats(), JsonFormats()})
    for (const Format& format : formats)
      if (format.name == (*words)[1]) check = format.check;
  Require(check != nullptr, "il formato è conosciuto");
  (*words)[1] = (*words)[0];  // the rest is for the fuzzing engine
  ++*words;
  --*count;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  check({reinterpret_cast<const char*>(data), size});
  return 0;
}
