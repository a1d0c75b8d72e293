// A library to be loaded before all others: it counts calls of the system by kind, and makes chosen ones fail. Where
//   PLOTVANE_FAULT="KIND N ERRNO [on|short]"
// is set, the Nth call of that kind fails with that number of an error, and with "on" each one after it, too; "short"
// lets a write take half of what it was given, and nothing more. PLOTVANE_FAULT_COUNTS names a file to which each
// process adds the counts of all kinds. Calls count from the first one for a file under PLOTVANE_FAULT_FROM.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum Kind { Open, Read, Write, Sync, Link, Rename, MakeFolder, Remove, Close, Truncate, Map, Allocate, KindCount };
constexpr char const* names[] = {"open",  "read",   "write", "fsync",    "link", "rename",
                                 "mkdir", "unlink", "close", "truncate", "mmap", "allocate"};
constexpr std::size_t largeBytes = 1 << 20;

struct Plan {
  int kind = -1, error = 0;
  long number = 0;
  bool goesOn = false, isShort = false;
  bool waits = false;  // for the file from which calls count
};
Plan plan;
std::atomic<bool> isCounting{false};
std::atomic<long> counts[KindCount];

template <class Function>
Function real(char const* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool fails(Kind kind) {
  if (!isCounting) return false;
  long const number = ++counts[kind];
  if (kind != plan.kind || number < plan.number || (number > plan.number && !plan.goesOn)) return false;
  errno = plan.error;
  return true;
}

void startAt(char const* path) {
  char const* const from = std::getenv("PLOTVANE_FAULT_FROM");
  if (!isCounting && path && (!from || std::strncmp(path, from, std::strlen(from)) == 0)) isCounting = true;
}

// Half of what is to be written, where the plan is that it comes back short.
std::size_t shortened(std::size_t bytes) { return bytes > 1 ? bytes / 2 : bytes; }

__attribute__((constructor)) void begin() {
  char const* const text = std::getenv("PLOTVANE_FAULT");
  char kind[16] = "", mode[16] = "";
  if (!text || std::sscanf(text, "%15s %ld %d %15s", kind, &plan.number, &plan.error, mode) < 3) return;
  for (int i = 0; i < KindCount; ++i)
    if (std::strcmp(names[i], kind) == 0) plan.kind = i;
  plan.goesOn = std::strcmp(mode, "on") == 0;
  plan.isShort = std::strcmp(mode, "short") == 0;
}

__attribute__((destructor)) void end() {
  char const* const path = std::getenv("PLOTVANE_FAULT_COUNTS");
  if (!path || !isCounting) return;
  isCounting = false;
  if (FILE* const file = std::fopen(path, "a")) {
    for (int i = 0; i < KindCount; ++i) std::fprintf(file, "%s %ld\n", names[i], counts[i].load());
    std::fclose(file);
  }
}

// The argument that only a call which may make a file has.
mode_t modeIn(int flags, va_list arguments) {
  return (flags & (O_CREAT | __O_TMPFILE)) ? static_cast<mode_t>(va_arg(arguments, int)) : 0;
}

}  // namespace

extern "C" {

int open(char const* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  mode_t const mode = modeIn(flags, arguments);
  va_end(arguments);
  static auto const next = real<int (*)(char const*, int, mode_t)>("open");
  startAt(path);
  return fails(Open) ? -1 : next(path, flags, mode);
}
int open64(char const* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  mode_t const mode = modeIn(flags, arguments);
  va_end(arguments);
  static auto const next = real<int (*)(char const*, int, mode_t)>("open64");
  startAt(path);
  return fails(Open) ? -1 : next(path, flags, mode);
}
int openat(int folder, char const* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  mode_t const mode = modeIn(flags, arguments);
  va_end(arguments);
  static auto const next = real<int (*)(int, char const*, int, mode_t)>("openat");
  startAt(path);
  return fails(Open) ? -1 : next(folder, path, flags, mode);
}
FILE* fopen64(char const* path, char const* how) {
  static auto const next = real<FILE* (*)(char const*, char const*)>("fopen64");
  startAt(path);
  return fails(Open) ? nullptr : next(path, how);
}
FILE* fopen(char const* path, char const* how) {
  static auto const next = real<FILE* (*)(char const*, char const*)>("fopen");
  startAt(path);
  return fails(Open) ? nullptr : next(path, how);
}

ssize_t read(int file, void* data, std::size_t bytes) {
  static auto const next = real<ssize_t (*)(int, void*, std::size_t)>("read");
  return fails(Read) ? -1 : next(file, data, bytes);
}
ssize_t pread64(int file, void* data, std::size_t bytes, off64_t place) {
  static auto const next = real<ssize_t (*)(int, void*, std::size_t, off64_t)>("pread64");
  return fails(Read) ? -1 : next(file, data, bytes, place);
}
std::size_t fread(void* data, std::size_t size, std::size_t count, FILE* file) {
  static auto const next = real<std::size_t (*)(void*, std::size_t, std::size_t, FILE*)>("fread");
  return fails(Read) ? 0 : next(data, size, count, file);
}

ssize_t write(int file, void const* data, std::size_t bytes) {
  static auto const next = real<ssize_t (*)(int, void const*, std::size_t)>("write");
  if (file <= STDERR_FILENO || !fails(Write)) return next(file, data, bytes);
  return plan.isShort ? next(file, data, shortened(bytes)) : -1;
}
ssize_t pwrite64(int file, void const* data, std::size_t bytes, off64_t place) {
  static auto const next = real<ssize_t (*)(int, void const*, std::size_t, off64_t)>("pwrite64");
  if (!fails(Write)) return next(file, data, bytes, place);
  return plan.isShort ? next(file, data, shortened(bytes), place) : -1;
}
std::size_t fwrite(void const* data, std::size_t size, std::size_t count, FILE* file) {
  static auto const next = real<std::size_t (*)(void const*, std::size_t, std::size_t, FILE*)>("fwrite");
  if (file == stdout || file == stderr || !fails(Write)) return next(data, size, count, file);
  return plan.isShort ? next(data, size, shortened(count), file) : 0;
}

int fsync(int file) {
  static auto const next = real<int (*)(int)>("fsync");
  return fails(Sync) ? -1 : next(file);
}
int rename(char const* from, char const* to) {
  static auto const next = real<int (*)(char const*, char const*)>("rename");
  return fails(Rename) ? -1 : next(from, to);
}
int mkdir(char const* path, mode_t mode) {
  static auto const next = real<int (*)(char const*, mode_t)>("mkdir");
  return fails(MakeFolder) ? -1 : next(path, mode);
}
char* mkdtemp(char* path) {
  static auto const next = real<char* (*)(char*)>("mkdtemp");
  return fails(MakeFolder) ? nullptr : next(path);
}
int linkat(int in, char const* from, int to, char const* name, int flags) {
  static auto const next = real<int (*)(int, char const*, int, char const*, int)>("linkat");
  return fails(Link) ? -1 : next(in, from, to, name, flags);
}
int unlink(char const* path) {
  static auto const next = real<int (*)(char const*)>("unlink");
  return fails(Remove) ? -1 : next(path);
}
// It is closed all the same, as the system does.
int close(int file) {
  static auto const next = real<int (*)(int)>("close");
  bool const failed = fails(Close);
  int const error = errno, result = next(file);
  if (failed) errno = error;
  return failed ? -1 : result;
}
int ftruncate64(int file, off64_t bytes) {
  static auto const next = real<int (*)(int, off64_t)>("ftruncate64");
  return fails(Truncate) ? -1 : next(file, bytes);
}
void* mmap64(void* place, std::size_t bytes, int protection, int flags, int file, off64_t offset) {
  static auto const next = real<void* (*)(void*, std::size_t, int, int, int, off64_t)>("mmap64");
  return file >= 0 && fails(Map) ? MAP_FAILED : next(place, bytes, protection, flags, file, offset);
}

void* malloc(std::size_t bytes) {
  static auto const next = real<void* (*)(std::size_t)>("malloc");
  return bytes >= largeBytes && fails(Allocate) ? nullptr : next(bytes);
}
void* realloc(void* former, std::size_t bytes) {
  static auto const next = real<void* (*)(void*, std::size_t)>("realloc");
  return bytes >= largeBytes && fails(Allocate) ? nullptr : next(former, bytes);
}

}  // extern "C"
