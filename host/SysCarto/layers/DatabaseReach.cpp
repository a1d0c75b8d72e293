#include "DatabaseReach.h"

#include "DatabaseBounds.h"
#include "SystemTexts.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <functional>
#include <memory>

namespace SysCarto {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DataSource)
};

QLatin1String const logSuffix("-wal"), indexSuffix("-shm");

// Calls for each row of an answer with its first column, until that is true. What can't be asked has no rows.
bool anyRow(sqlite3* database, char const* query, std::function<bool(QByteArray const&)> const& isFound) {
  sqlite3_stmt* prepared = nullptr;
  if (sqlite3_prepare_v2(database, query, -1, &prepared, nullptr) != SQLITE_OK) return false;
  std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> const statement(prepared, sqlite3_finalize);
  bool found = false;
  while (!found && sqlite3_step(prepared) == SQLITE_ROW) {
    auto const* const text = reinterpret_cast<char const*>(sqlite3_column_text(prepared, 0));
    found = text && isFound(text);
  }
  return found;
}

// Indexes in space and of words are kept in tables of the same file.
bool isForeignTable(QByteArray const& statement) {
  static QString const space = QStringLiteral("(?:\\s|\\x{FEFF}|/\\*.*?\\*/|--[^\\n]*\\n)+");
  static QRegularExpression const isVirtual(
      QStringLiteral("^create") + space + QStringLiteral("virtual\\b"),
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  static QRegularExpression const isOwn(
      QStringLiteral("^create virtual table (\"[^\"]*\"|\\[[^\\]]*\\]|`[^`]*`|'[^']*'|\\w+) using "
                     "(rtree|rtree_i32|fts[345])\\s*\\("),
      QRegularExpression::CaseInsensitiveOption);
  QString const text = QString::fromUtf8(statement);
  return isVirtual.match(text).hasMatch() && !isOwn.match(text.simplified()).hasMatch();
}

bool holdsWayOut(sqlite3* database) {
  // Systems that are made up by a query could be others when they are asked for again.
  return anyRow(database, "SELECT sql FROM sqlite_master", isForeignTable) ||
         anyRow(database, "SELECT name FROM sqlite_master WHERE type = 'view' AND lower(name) = 'gpkg_spatial_ref_sys'",
                [](QByteArray const&) { return true; }) ||
         anyRow(database, "SELECT definition FROM gpkg_spatial_ref_sys", namesGridByPath) ||
         anyRow(database, "SELECT definition_12_063 FROM gpkg_spatial_ref_sys", namesGridByPath);
}

// Whether a program holds a lock of this kind ("READ", "WRITE", or any for "") on a file. To open the file and ask
// would not do: closing it again ends the locks that this process has on it.
bool isLocked(QString const& path, QByteArray const& kind) {
  struct stat status;
  QFile locks(QStringLiteral("/proc/locks"));
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) return false;
  if (!locks.open(QIODevice::ReadOnly)) return true;
  QByteArray const inode = ':' + QByteArray::number(static_cast<qulonglong>(status.st_ino)) + ' ';
  QList<QByteArray> const lines = locks.readAll().split('\n');
  return std::any_of(lines.cbegin(), lines.cend(),
                     [&](QByteArray const& line) { return line.contains(inode) && line.contains(kind); });
}

// A journal that is done with begins with a zero.
bool isBegun(QString const& journal) {
  QFile file(journal);
  char first = 0;
  return file.open(QIODevice::ReadOnly) && file.read(&first, 1) == 1 && first != 0;
}

// Whoever opens a database with a log or a journal that nobody has in use any more has it written into the database, or
// taken back from it: what a stranger has laid beside a file would change it, and a journal may name a further file
// that is then removed. Each that has the database open holds a lock on the index of its log; where there is none, who
// writes holds one on the database, which may be in between two states then.
QString problemOfJournals(QString const& path) {
  QString const journal = path + QLatin1String("-journal"), log = path + logSuffix, index = path + indexSuffix;
  for (QString const& name : {journal, log, index}) {
    QFileInfo const beside(name);
    if (beside.isSymLink() || (beside.exists() && !beside.isFile()))
      return Texts::tr("%1 beside it is no file of its own; remove that").arg(beside.fileName());
  }
  if (isBegun(journal) && isLocked(path, " WRITE "))
    return Texts::tr("another program is just writing it; try again when that is done");
  bool const hasJournal = isBegun(journal);  // again, since it may have come to its end by now
  if (hasJournal || (hasLog(path) && !isLocked(index, QByteArray())))
    return Texts::tr(
               "a change of it was not brought to its end, and lies beside it in %1; open it once in the program "
               "that changed it, and close it there")
        .arg(QFileInfo(hasJournal ? journal : log).fileName());
  return QString();
}

}  // namespace

// Immutable, so that nothing is written beside it; what another program has yet to write into it comes with its log.
QString problemOfDatabase(QString const& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.read(6) != "SQLite") return QString();
  if (QString const problem = problemOfJournals(path); !problem.isEmpty()) return problem;
  QByteArray const address = "file:" + QUrl::toPercentEncoding(QFileInfo(path).absoluteFilePath(), "/") +
                             (hasLog(path) ? QByteArrayLiteral("?readonly_shm=1") : QByteArrayLiteral("?immutable=1"));
  DatabaseBounds const bounds(path);
  sqlite3* opened = nullptr;
  int const result = sqlite3_open_v2(address.constData(), &opened, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, nullptr);
  std::unique_ptr<sqlite3, int (*)(sqlite3*)> const database(opened, sqlite3_close);
  if (result != SQLITE_OK || !holdsWayOut(opened)) return QString();
  return Texts::tr(
      "it holds a table or a coordinate system that leads to another file, which is not opened; remove it");
}

bool hasLog(QString const& path) { return QFileInfo(path + logSuffix).size() > 0; }

}  // namespace SysCarto
