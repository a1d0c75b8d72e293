#include "ConditionSql.h"

#include <ogr_swq.h>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace SysCarto {

namespace {

using Kind = SqlColumn::Kind;

// A field that is read may be rounded, at worst to a number of four bytes.
constexpr double relativeSlack = 1e-6, absoluteSlack = 1e-30, largest = 1e300;
constexpr int maxMembers = 1000, maxAlternatives = 100;

bool isConstant(swq_expr_node const& node) { return node.eNodeType == SNT_CONSTANT && !node.is_null; }

bool isWhole(swq_expr_node const& constant) {
  return constant.field_type == SWQ_INTEGER || constant.field_type == SWQ_INTEGER64;
}

// The bound of a number that is not below it, or not above; empty for none.
QByteArray bound(SqlColumn const& column, swq_expr_node const& constant, int direction) {
  if (isWhole(constant) && column.kind == Kind::Integer)
    return QByteArray::number(static_cast<qlonglong>(constant.int_value));
  double const value = isWhole(constant) ? static_cast<double>(constant.int_value) : constant.float_value;
  bool const isNumber = isWhole(constant) || constant.field_type == SWQ_FLOAT;
  if (!isNumber || !(std::abs(value) < largest)) return QByteArray();
  constexpr int allDigits = 17;
  double const slack = std::abs(value) * relativeSlack + absoluteSlack;
  return QByteArray::number(value + direction * slack, 'g', allDigits);
}

QByteArray between(SqlColumn const& column, swq_expr_node const& low, swq_expr_node const& high) {
  QByteArray const from = bound(column, low, -1), to = bound(column, high, 1);
  if (from.isEmpty() || to.isEmpty()) return QByteArray();
  return column.sql + " BETWEEN " + from + " AND " + to;
}

// OGR takes texts for equal in another way where they end as times do.
bool mayBeTime(QByteArray const& text) { return text.contains(':') || text.endsWith("+00"); }

QByteArray folded(QByteArray text) {
  for (char& letter : text)
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  return text;
}

QByteArray textOf(swq_expr_node const& constant, Narrowing const& source) {
  bool const isText = constant.field_type == SWQ_STRING && constant.string_value && !mayBeTime(constant.string_value);
  return isText ? source.quoted(folded(constant.string_value)) : QByteArray();
}

QByteArray equal(SqlColumn const& column, swq_expr_node const& constant, Narrowing const& source) {
  if (column.kind != Kind::Text) return between(column, constant, constant);
  QByteArray const quoted = textOf(constant, source);
  return quoted.isEmpty() ? quoted : column.sql + " = " + quoted;
}

QByteArray joined(QByteArray const& a, char const* word, QByteArray const& b) { return '(' + a + word + b + ')'; }

// As a list where all can be compared exactly, since a database can't go through as many alternatives.
QByteArray isAnyOf(swq_expr_node const& node, SqlColumn const& column, Narrowing const& source) {
  auto const *const first = node.papoSubExpr + 1, *const end = node.papoSubExpr + node.nSubExprCount;
  bool const areWhole = std::all_of(first, end, [](auto const* member) { return isWhole(*member); });
  bool const isList = column.kind == Kind::Text || (column.kind == Kind::Integer && areWhole);
  if (end - first > (isList ? maxMembers : maxAlternatives)) return QByteArray();
  QByteArray any;
  for (auto const* member = first; member != end; ++member) {
    QByteArray const one = !isList                     ? equal(column, **member, source)
                           : column.kind == Kind::Text ? textOf(**member, source)
                                                       : bound(column, **member, 0);
    if (one.isEmpty()) return one;
    any += any.isEmpty() ? one : (isList ? ", " : " OR ") + one;
  }
  return isList ? column.sql + " IN (" + any + ')' : '(' + any + ')';
}

QByteArray bounded(int operation, SqlColumn const& column, swq_expr_node const& constant) {
  bool const isBelow = operation == SWQ_LT || operation == SWQ_LE;
  if (column.kind == Kind::Text) return QByteArray();
  QByteArray const value = bound(column, constant, isBelow ? 1 : -1);
  return value.isEmpty() ? value : column.sql + (isBelow ? " <= " : " >= ") + value;
}

// The same, seen from its other side.
int turned(int operation) {
  constexpr int pairs[][2] = {{SWQ_LT, SWQ_GT}, {SWQ_LE, SWQ_GE}, {SWQ_GT, SWQ_LT}, {SWQ_GE, SWQ_LE}};
  auto const pair =
      std::find_if(std::begin(pairs), std::end(pairs), [&](auto const& one) { return one[0] == operation; });
  return pair == std::end(pairs) ? operation : (*pair)[1];
}

SqlColumn columnOf(swq_expr_node const& node, Narrowing const& source) {
  bool const isColumn = node.eNodeType == SNT_COLUMN && node.table_index == 0 && node.field_index >= 0;
  return isColumn ? source.column(node.field_index) : SqlColumn();
}

QByteArray comparison(swq_expr_node const& node, Narrowing const& source) {
  auto const& parts = node.papoSubExpr;
  bool const isTurned = node.nSubExprCount == 2 && isConstant(*parts[0]);
  SqlColumn const column = columnOf(*parts[isTurned ? 1 : 0], source);
  if (column.kind == Kind::None) return QByteArray();
  if (node.nOperation == SWQ_ISNULL) return column.sql + " IS NULL";
  int const first = isTurned ? 0 : 1, end = isTurned ? 1 : node.nSubExprCount;
  if (!std::all_of(parts + first, parts + end, [](auto const* part) { return isConstant(*part); })) return QByteArray();
  int const operation = isTurned ? turned(node.nOperation) : node.nOperation;
  switch (operation) {
    case SWQ_EQ: return equal(column, *parts[first], source);
    case SWQ_IN: return isAnyOf(node, column, source);
    case SWQ_BETWEEN: return column.kind == Kind::Text ? QByteArray() : between(column, *parts[1], *parts[2]);
    case SWQ_LT:
    case SWQ_LE:
    case SWQ_GT:
    case SWQ_GE: return bounded(operation, column, *parts[first]);
    default: return QByteArray();
  }
}

}  // namespace

QByteArray impliedSql(swq_expr_node const& condition, Narrowing const& source) {
  if (condition.eNodeType != SNT_OPERATION || condition.nSubExprCount == 0) return QByteArray();
  auto const& parts = condition.papoSubExpr;
  if (condition.nOperation == SWQ_NOT) {
    bool const isGiven = parts[0]->eNodeType == SNT_OPERATION && parts[0]->nOperation == SWQ_ISNULL;
    QByteArray const none = isGiven ? comparison(*parts[0], source) : QByteArray();
    return none.isEmpty() ? none : "NOT " + none;
  }
  bool const isAnd = condition.nOperation == SWQ_AND;
  if (!isAnd && condition.nOperation != SWQ_OR) return comparison(condition, source);
  QByteArray const a = impliedSql(*parts[0], source), b = impliedSql(*parts[1], source);
  if (!a.isEmpty() && !b.isEmpty()) return joined(a, isAnd ? " AND " : " OR ", b);
  return isAnd ? a + b : QByteArray();
}

}  // namespace SysCarto
