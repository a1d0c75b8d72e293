#pragma once

#include <QByteArray>
#include <QString>

namespace SysCarto {

/// While it lives, a database of SQLite that this thread opens under this path can be asked for what it holds and for
/// little more, as long as it stays open: no query calls itself or opens another file, none works longer than the size
/// of the file explains, and no value is much longer than the file. What is too much ends as a failure of GDAL.
class DatabaseBounds {
public:
  /// Whether each statement may work as long as the size of the file explains, or all of them together have some
  /// seconds too, after which, as after the first that is ended, none is answered: for files that are read in pieces.
  enum class Budget { OfEachStatement, OfAll };

  explicit DatabaseBounds(QString const& path, Budget budget = Budget::OfEachStatement);
  ~DatabaseBounds();
  DatabaseBounds(DatabaseBounds const&) = delete;
  DatabaseBounds& operator=(DatabaseBounds const&) = delete;

private:
  QByteArray const path_;
  Budget const budget_;
  DatabaseBounds* const before_;

  friend struct DatabaseWatch;
};

}  // namespace SysCarto
