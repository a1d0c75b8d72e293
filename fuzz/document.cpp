// Any bytes are a document that opens, and is then drawn, or answer a sentence.

#include <SysCarto/MapDocument.h>

#include <QApplication>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

namespace {

// A file in memory that is opened by name like any other.
class MemoryFile {
public:
  MemoryFile() : file_(memfd_create("document.kdx", MFD_CLOEXEC)) {}
  ~MemoryFile() { close(file_); }

  QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(file_); }
  bool hold(std::uint8_t const* bytes, std::size_t size) const {
    return ftruncate(file_, 0) == 0 && pwrite(file_, bytes, size, 0) == static_cast<ssize_t>(size);
  }

private:
  int file_;
};

}  // namespace

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
