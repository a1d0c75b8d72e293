// Any bytes are a document that opens, and is then drawn, or answer a sentence.

#include "MemoryFile.h"

#include <SysCarto/MapDocument.h>

#include <QApplication>

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication application(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  static MemoryFile const file;
  if (!file.hold(bytes, size)) std::abort();
  SysCarto::MapDocument document;
  bool const opened = document.Open(file.path());
  if (opened != document.GetErrors().isEmpty()) std::abort();
  if (opened) document.Thumbnail();
  return 0;
}
