#include "FieldReference.h"

#include "FieldParts.h"
#include "StoredFormat.h"

#include <QSet>

#include <cmath>
#include <limits>
#include <utility>

using SysUtility::FieldInfo;
using SysUtility::NumbersKind;
using SysUtility::Range;
using SysUtility::TextKind;
using SysUtility::Unit;
using SysUtility::ValueRules;
using Kind = FieldInfo::Kind;

namespace {

QString code(QString const& text) { return QLatin1Char('`') + text + QLatin1Char('`'); }
QString quoted(QString const& text) { return code(QLatin1Char('"') + text + QLatin1Char('"')); }

// "lineSymbol" as people write it.
QString words(QString const& type) {
  QString text;
  for (QChar const letter : type) text += letter.isUpper() ? QStringLiteral(" ") + letter.toLower() : QString(letter);
  return text;
}

QString plural(QString const& word) {
  int const rest = word.indexOf(QLatin1String(" of "));
  if (rest >= 0) return plural(word.left(rest)) + word.mid(rest);
  if (word.endsWith(QLatin1Char('s'))) return word + QStringLiteral("es");
  if (word.endsWith(QLatin1Char('y'))) return word.chopped(1) + QStringLiteral("ies");
  return word + QLatin1Char('s');
}

// Numbers as people write them: 10,000, −0.5, 10¹².

constexpr double leastPower = 1e9;

QString raised(int exponent) {
  QString text = QString::number(exponent);
  for (QChar& digit : text) digit = QStringLiteral("⁰¹²³⁴⁵⁶⁷⁸⁹").at(digit.digitValue());
  return QStringLiteral("10") + text;
}

QString grouped(QString digits) {
  for (int at = digits.size() - 3; at > 0; at -= 3) digits.insert(at, QLatin1Char(','));
  return digits;
}

QString shown(double number) {
  if (number < 0) return QStringLiteral("−") + shown(-number);
  int const exponent = number > 0 ? static_cast<int>(std::lround(std::log10(number))) : 0;
  if (number >= leastPower && std::abs(number / std::pow(10, exponent) - 1) < 1e-9) return raised(exponent);
  return number == std::floor(number) ? grouped(QString::number(number, 'f', 0)) : QString::number(number);
}

QString shown(Unit unit) {
  switch (unit) {
    case Unit::Point: return QStringLiteral(" points");
    case Unit::Centimetre: return QStringLiteral(" cm");
    case Unit::Degree: return QStringLiteral(" degrees");
    case Unit::Percent: return QStringLiteral(" per cent");
    case Unit::LineWidth: return QStringLiteral(" line widths");
    case Unit::MapUnit: return QStringLiteral(" map units");
    case Unit::None:
    case Unit::ScaleDenominator: break;
  }
  return QString();
}

QString withRange(QString const& noun, Range const& range) {
  if (range.min == range.max) return code(QString::number(range.min));
  if (range.max == std::numeric_limits<double>::max()) return noun;
  return QStringLiteral("%1, %2 to %3%4").arg(noun, shown(range.min), shown(range.max), shown(range.unit));
}

QString shown(TextKind kind) {
  switch (kind) {
    case TextKind::Line:
    case TextKind::Attribute: return QStringLiteral("text");
    case TextKind::Lines: return QStringLiteral("text, lines separated by `\\n`");
    case TextKind::Color: return QStringLiteral("colour");
    case TextKind::File: return QStringLiteral("path");
    case TextKind::Svg: return QStringLiteral("SVG");
    case TextKind::Picture: return QStringLiteral("data URI");
    case TextKind::Condition: return QStringLiteral("condition");
    case TextKind::CoordinateSystem: return QStringLiteral("coordinate system");
  }
  return QString();
}

QString shown(NumbersKind kind) {
  switch (kind) {
    case NumbersKind::Point: return code(QStringLiteral("[x, y]"));
    case NumbersKind::Offset: return code(QStringLiteral("[right, up]"));
    case NumbersKind::Rectangle: return code(QStringLiteral("[xmin, ymin, xmax, ymax]"));
  }
  return QString();
}

// Whether the later name follows the earlier one as "A4" follows "A3", or "ARCHB" "ARCHA".
bool follows(QString const& earlier, QString const& later) {
  auto const stem = [](QString const& name) {
    int end = name.size();
    while (end > 0 && name.at(end - 1).isDigit()) --end;
    return end == name.size() ? name.chopped(1) : name.left(end);
  };
  if (stem(earlier) != stem(later)) return false;
  QString const from = earlier.mid(stem(earlier).size()), to = later.mid(stem(later).size());
  if (from.at(0).isDigit()) return to.toInt() == from.toInt() + 1;
  return from.size() == 1 && to.size() == 1 && from.at(0).isUpper() && to.at(0).unicode() == from.at(0).unicode() + 1;
}

// The names in quotes, a row of them as its first and last.
QString shown(QStringList const& names) {
  QStringList parts;
  for (int first = 0, last = 0; first < names.size(); first = ++last) {
    while (last + 1 < names.size() && follows(names[last], names[last + 1])) ++last;
    if (last > first + 1)
      parts << QStringLiteral("%1 to %2").arg(quoted(names[first]), quoted(names[last]));
    else
      for (int i = first; i <= last; ++i) parts << quoted(names[i]);
  }
  return parts.join(QStringLiteral(", "));
}

QString defaultOf(FieldInfo const& info) {
  if (info.rules.isRequired) return QStringLiteral("must be there");
  if (info.rules.isDerived) return QStringLiteral("by other fields");
  QJsonValue const& value = info.rules.byDefault;
  if (value.isBool()) return value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
  if (value.isDouble()) return shown(value.toDouble());
  if (value.isString()) return quoted(value.toString());
  return QStringLiteral("none");
}

class ReferenceMaker {
public:
  /// Types of a format that another file describes are named and not described.
  ReferenceMaker(QString format, QVector<FieldType> types, QString sharedFile, QSet<QString> sharedTypes)
      : format_(std::move(format)),
        types_(std::move(types)),
        sharedFile_(std::move(sharedFile)),
        shared_(std::move(sharedTypes)) {}

  QString sections() const;

private:
  QString section(FieldType const& type) const;
  QString link(QString const& type, bool isPlural = false) const;
  QString kindOf(FieldInfo const& info) const;
  QString rows(QVector<FieldInfo> const& fields, std::optional<QString> const& kinds) const;

  QString const format_;
  QVector<FieldType> const types_;
  QString const sharedFile_;
  QSet<QString> const shared_;
};

QString ReferenceMaker::sections() const {
  QStringList texts;
  for (FieldType const& type : types_)
    if (!shared_.contains(type.name)) texts << section(type);
  return texts.join(QLatin1Char('\n'));
}

QString ReferenceMaker::link(QString const& type, bool isPlural) const {
  QString const word = words(type);
  return QStringLiteral("[%1](%2#%3)")
      .arg(isPlural ? plural(word) : word, shared_.contains(type) ? sharedFile_ : QString(),
           QString(word).replace(QLatin1Char(' '), QLatin1Char('-')));
}

QString ReferenceMaker::kindOf(FieldInfo const& info) const {
  ValueRules const& rules = info.rules;
  QString const type = QString::fromUtf8(info.type());
  switch (info.kind) {
    case Kind::Number: return withRange(QStringLiteral("number"), rules.range);
    case Kind::Integer: return withRange(QStringLiteral("whole number"), rules.range);
    case Kind::Flag: return QStringLiteral("true or false");
    case Kind::Text: return shown(rules.textKind) + (rules.isFilled ? QStringLiteral(", not empty") : QString());
    case Kind::Texts: return QStringLiteral("list of texts");
    case Kind::Numbers: return withRange(shown(rules.numbersKind), rules.range);
    case Kind::Coordinates:
      return withRange(QStringLiteral("`[x1, y1, x2, y2, …]`, %1 points or more").arg(rules.minPoints), rules.range);
    case Kind::NumberList:
      return withRange(QStringLiteral("%1 to %2 numbers").arg(rules.counts.min).arg(rules.counts.max), rules.range);
    case Kind::Choice:
    case Kind::Variant: return shown(namesOf(info.choices));
    case Kind::Object: return link(type);
    case Kind::List: break;
  }
  QString const most = grouped(QString::number(info.counts.max));
  if (info.counts.min > 0) return QStringLiteral("%1 to %2 %3").arg(info.counts.min).arg(most, link(type, true));
  return QStringLiteral("list of %1, at most %2").arg(link(type, true), most);
}

// With `kinds`, the first row says in a column before the others which kinds of the object have these fields.
QString ReferenceMaker::rows(QVector<FieldInfo> const& fields, std::optional<QString> const& kinds) const {
  QString text, first = kinds.value_or(QString());
  for (FieldInfo const& info : fields) {
    if (kinds) text += QStringLiteral("| %1 ").arg(std::exchange(first, QString()));
    text += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                .arg(code(QString::fromUtf8(info.field.key)), kindOf(info), defaultOf(info),
                     QString::fromUtf8(info.field.help));
  }
  return text;
}

QString ReferenceMaker::section(FieldType const& type) const {
  FieldParts const parts = partsOf(type.fields, types_);
  bool const hasKinds = !parts.ofKinds.isEmpty();
  QString heading = words(type.name);
  heading[0] = heading[0].toUpper();
  QString text = QStringLiteral("<!-- plotvane reference %1: %2 -->\n\n### %3\n\n").arg(format_, type.name, heading);
  if (hasKinds) text += QStringLiteral("| %1 ").arg(code(parts.kindKey));
  text += QStringLiteral("| field | kind | default | meaning |\n|---|---|---|---|");
  text += hasKinds ? QStringLiteral("---|\n") : QStringLiteral("\n");
  text += rows(parts.always, hasKinds ? std::optional<QString>(QStringLiteral("all")) : std::nullopt);
  for (FieldPart const& part : parts.ofKinds) {
    if (part.type.isEmpty())
      text += rows(part.fields, shown(part.kinds));
    else
      text += QStringLiteral("| %1 | | | | the fields of a %2 |\n").arg(shown(part.kinds), link(part.type));
  }
  return text + QStringLiteral("\n<!-- end -->\n");
}

}  // namespace

QString fieldReference(StoredFormat const& format) {
  QString const document = QLatin1String(documentFormat.name), name = QLatin1String(format.name);
  auto const types = typesOf(name, format.fields());
  if (name == document) return ReferenceMaker(name, types, QString(), {}).sections();
  QSet<QString> shared;
  for (FieldType const& type : typesOf(document, documentFormat.fields())) shared << type.name;
  return ReferenceMaker(name, types, QStringLiteral("document-format.md"), shared).sections();
}
