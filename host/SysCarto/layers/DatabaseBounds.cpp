#include "DatabaseBounds.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <mutex>
#include <utility>

namespace SysCarto {

namespace {

// A row of a table takes some tens of bytes and as many steps of SQLite's machine. Joins want more of them.
constexpr std::int64_t freeSteps = 20000000;  // about half a second
constexpr std::int64_t stepsPerByte = 50;
constexpr int stepsBetweenLooks = 10000;
constexpr std::chrono::milliseconds freeTime(4000);
constexpr std::int64_t bytesPerMillisecond = 20000;
constexpr std::int64_t freeLength = 65536;  // of a value, in bytes, beside what a file of its size could hold

// A single call of these can take longer than anybody waits, and nothing interrupts it; no honest view needs them.
constexpr char const* costlyFunctions[] = {"char",   "format", "glob",       "group_concat", "hex",     "instr",
                                           "printf", "quote",  "randomblob", "replace",      "zeroblob"};

thread_local DatabaseBounds* current = nullptr;

using Clock = std::chrono::steady_clock;

// What is left of the statement that was begun last, and to all where they share; lives as long as the connection. A
// sort of long values takes few steps and much time.
struct Steps {
  std::int64_t const allowed;
  bool const areShared;
  std::int64_t left = allowed;
  Clock::duration timeLeft{};
  Clock::time_point since{};
};

int look(void* data) {
  auto& steps = *static_cast<Steps*>(data);
  steps.left -= stepsBetweenLooks;
  if (!steps.areShared) return steps.left < 0;
  Clock::time_point const now = Clock::now();
  steps.timeLeft -= now - std::exchange(steps.since, now);
  if (steps.left < 0) steps.timeLeft = {};
  return steps.timeLeft <= Clock::duration();
}

int beginStatement(unsigned, void* data, void*, void*) {
  auto& steps = *static_cast<Steps*>(data);
  steps.left = steps.allowed;
  steps.since = Clock::now();
  return 0;
}

bool isCostly(char const* function) {
  return std::any_of(std::begin(costlyFunctions), std::end(costlyFunctions),
                     [&](char const* costly) { return function && sqlite3_stricmp(function, costly) == 0; });
}

int authorize(void*, int action, char const*, char const* second, char const*, char const* view) {
  if (action == SQLITE_FUNCTION && view && isCostly(second)) return SQLITE_DENY;
  return action == SQLITE_RECURSIVE || action == SQLITE_ATTACH ? SQLITE_DENY : SQLITE_OK;
}

void forget(void* data) { delete static_cast<Steps*>(data); }
void ignore(sqlite3_context*, int, sqlite3_value**) {}

void bind(sqlite3* database, std::int64_t fileSize, bool areShared) {
  auto steps = std::make_unique<Steps>(Steps{freeSteps + stepsPerByte * fileSize, areShared});
  steps->timeLeft = freeTime + std::chrono::milliseconds(fileSize / bytesPerMillisecond);
  // A function that nobody calls, since SQLite tells its owner when the connection is closed.
  Steps* const own = steps.release();
  if (sqlite3_create_function_v2(database, "plotvane_bounds", 0, SQLITE_UTF8 | SQLITE_DIRECTONLY, own, ignore, nullptr,
                                 nullptr, forget) != SQLITE_OK)
    return;
  sqlite3_progress_handler(database, stepsBetweenLooks, look, own);
  sqlite3_trace_v2(database, SQLITE_TRACE_STMT, beginStatement, own);
  sqlite3_set_authorizer(database, authorize, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_limit(database, SQLITE_LIMIT_LENGTH,
                static_cast<int>(std::min<std::int64_t>(freeLength + fileSize, std::numeric_limits<int>::max())));
}

}  // namespace

// SQLite calls it for each database that the process opens, PROJ's own among them.
struct DatabaseWatch {
  static int opened(sqlite3* database, char const**, sqlite3_api_routines const*) {
    char const* const name = sqlite3_db_filename(database, "main");
    QByteArray const path = QFile::decodeName(name ? name : "").toUtf8();
    if (current && QFileInfo(QString::fromUtf8(path)).canonicalFilePath().toUtf8() == current->path_)
      bind(database, QFileInfo(QString::fromUtf8(path)).size(), current->budget_ == DatabaseBounds::Budget::OfAll);
    return SQLITE_OK;
  }
};

DatabaseBounds::DatabaseBounds(QString const& path, Budget budget)
    : path_(QFileInfo(path).canonicalFilePath().toUtf8()), budget_(budget), before_(current) {
  static std::once_flag once;
  std::call_once(once, [] { sqlite3_auto_extension(reinterpret_cast<void (*)()>(&DatabaseWatch::opened)); });
  current = this;
}

DatabaseBounds::~DatabaseBounds() { current = before_; }

}  // namespace SysCarto
