#pragma once

#include <QString>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

/// A file in memory that is opened by name like any other.
class MemoryFile {
public:
  MemoryFile() : file_(memfd_create("fuzz", MFD_CLOEXEC)) {}
  ~MemoryFile() { close(file_); }
  MemoryFile(MemoryFile const&) = delete;
  MemoryFile& operator=(MemoryFile const&) = delete;

  QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(file_); }
  bool hold(std::uint8_t const* bytes, std::size_t size) const {
    return ftruncate(file_, 0) == 0 && pwrite(file_, bytes, size, 0) == static_cast<ssize_t>(size);
  }

private:
  int file_;
};
