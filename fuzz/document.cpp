// Any bytes are a document that opens, and is then drawn, or answer a sentence.

#include "Fuzz.h"
#include "MemoryFile.h"

#include <SysCarto/MapDocument.h>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  fuzz::start(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  static MemoryFile const file;
  fuzz::require(file.hold(bytes, size));
  SysCarto::MapDocument document;
  bool const opened = document.Open(file.path());
  fuzz::require(opened == document.GetErrors().isEmpty());
  if (opened) document.Thumbnail();
  return 0;
}
