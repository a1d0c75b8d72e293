#pragma once

#include <QByteArray>

class OGRLayer;
class swq_expr_node;

namespace SysCarto {

/// How a database compares a column with a constant, as OGR compares the field that is read from it. For a text that is
/// without regard to the case of the letters A to Z; constants have them small.
struct SqlColumn {
  enum class Kind { None, Integer, Real, Text };
  Kind kind = Kind::None;
  QByteArray sql;
};

/// A source that can leave out rows of which nothing is wanted.
class Narrowing {
public:
  virtual ~Narrowing() = default;

  /// Of none where it can't be said how it is compared.
  virtual SqlColumn column(int field) const = 0;

  /// Empty where it can't be said.
  virtual QByteArray quoted(QByteArray const& text) const = 0;

  /// From now on gives at least the rows for which that holds.
  virtual void narrow(QByteArray const& sql) = 0;
};

/// What holds for each row for which the condition does, and perhaps for more, as a part of an AND; empty where that is
/// all of them. It is
/// made of comparisons of columns with constants alone, so that no function of a database can be reached.
QByteArray impliedSql(swq_expr_node const& condition, Narrowing const& source);

}  // namespace SysCarto
