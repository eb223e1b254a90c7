// MEMO.RTF: rich text read, written and read again is the same document, in the same bytes.
#include "shell/memo/rtf.h"
#include "tests/fuzz/file_fuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace orm;
  RichDocument document;
  try {
    document = ReadRtf(fuzz::Text(data, size)).document;
  } catch (const RuntimeFailure& failure) {
    fuzz::Require(!failure.Reason().empty(), "il messaggio ha una ragione");
    return 0;
  }
  const std::string written = WriteRtf(document);
  const RtfReading again = ReadRtf(written);
  fuzz::Require(again.losses.empty(), "il testo riscritto non perde nulla");
  fuzz::Require(again.document == document, "il testo riletto è uguale");
  fuzz::Require(WriteRtf(again.document) == written, "il file riscritto resta uguale");
  PlainText(document);
  return 0;
}
