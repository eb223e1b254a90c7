// EDITOR.PER, the programs outside.
#include "shell/personal/settings.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  static const fuzz::FuzzFolder place;
  static fuzz::Nobody nobody;
  RunState stato(nobody, place.Folder());
  fuzz::CheckFile(
      place, kFileEditor, fuzz::Text(data, size),
      [&] {
        LeggiEditor(stato);
        fuzz::Values values;
        Campi(values, stato.editors);
        return values;
      },
      [&] { ScriviEditor(stato.folder, stato.editors); });
  return 0;
}
