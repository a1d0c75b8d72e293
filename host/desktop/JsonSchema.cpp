#include "JsonSchema.h"

#include "FieldParts.h"
#include "StoredFormat.h"

#include <QJsonArray>

#include <limits>
#include <utility>

using SysUtility::Choice;
using SysUtility::FieldInfo;
using SysUtility::Range;
using SysUtility::TextKind;
using SysUtility::Unit;
using SysUtility::ValueRules;
using Kind = FieldInfo::Kind;

namespace {

constexpr double unlimited = std::numeric_limits<double>::max();

QString sentenceOf(Unit unit) {
  switch (unit) {
    case Unit::Point: return QStringLiteral(" In points.");
    case Unit::Centimetre: return QStringLiteral(" In centimetres.");
    case Unit::Degree: return QStringLiteral(" In degrees.");
    case Unit::Percent: return QStringLiteral(" In per cent.");
    case Unit::LineWidth: return QStringLiteral(" In line widths.");
    case Unit::MapUnit: return QStringLiteral(" In map units.");
    case Unit::None:
    case Unit::ScaleDenominator: break;
  }
  return QString();
}

// What the names of choices mean, for those that people read otherwise.
QString sentenceOf(QVector<Choice> const& choices) {
  QStringList meanings;
  for (Choice const& choice : choices)
    if (QLatin1String(choice.name).compare(QLatin1String(choice.caption), Qt::CaseInsensitive) != 0)
      meanings << QStringLiteral("%1 – %2").arg(QLatin1String(choice.name), QLatin1String(choice.caption));
  return meanings.isEmpty() ? QString() : QStringLiteral(" %1.").arg(meanings.join(QStringLiteral("; ")));
}

QJsonObject oneOf(QStringList const& names) {
  if (names.size() == 1) return {{QStringLiteral("const"), names.first()}};
  return {{QStringLiteral("enum"), QJsonArray::fromStringList(names)}};
}

QJsonObject numberIn(Range const& range, char const* type) {
  if (range.min == range.max) return {{QStringLiteral("const"), range.min}};
  QJsonObject schema{{QStringLiteral("type"), QLatin1String(type)}};
  if (range.min > -unlimited) schema.insert(QStringLiteral("minimum"), range.min);
  if (range.max < unlimited) schema.insert(QStringLiteral("maximum"), range.max);
  return schema;
}

QJsonObject textOf(ValueRules const& rules) {
  QJsonObject schema{{QStringLiteral("type"), QStringLiteral("string")},
                     {QStringLiteral("maxLength"), SysUtility::maxCharacters(rules.textKind)}};
  if (rules.textKind == TextKind::Color)
    schema.insert(QStringLiteral("pattern"), QStringLiteral("^#([0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})$"));
  else if (rules.textKind == TextKind::Picture)
    schema.insert(
        QStringLiteral("pattern"),
        QStringLiteral(
            "^(data:image/(png|jpeg|tiff|webp|svg\\+xml);base64,([A-Za-z0-9+/]{4})*[A-Za-z0-9+/]{2,3}={0,2})?$"));
  else if (rules.isFilled)
    schema.insert(QStringLiteral("pattern"), QStringLiteral("\\S"));
  return schema;
}

QJsonObject listOf(QJsonObject const& items, int min, int max = std::numeric_limits<int>::max()) {
  QJsonObject schema{{QStringLiteral("type"), QStringLiteral("array")}, {QStringLiteral("items"), items}};
  if (min > 0) schema.insert(QStringLiteral("minItems"), min);
  if (max < std::numeric_limits<int>::max()) schema.insert(QStringLiteral("maxItems"), max);
  return schema;
}

QJsonObject referenceTo(QString const& definition) {
  return {{QStringLiteral("$ref"), QStringLiteral("#/$defs/") + definition}};
}

class SchemaMaker {
public:
  explicit SchemaMaker(QVector<FieldType> types) : types_(std::move(types)) {}
  QJsonObject schema();

private:
  QJsonObject object(FieldType const& type);
  QJsonObject part(QString const& type, FieldPart const& part);
  QJsonObject described(QVector<FieldInfo> const& fields) const;
  QJsonObject field(FieldInfo const& info) const;
  QJsonObject value(FieldInfo const& info) const;

  QVector<FieldType> const types_;
  QJsonObject definitions_;
};

// Of the first type, the others as definitions.
QJsonObject SchemaMaker::schema() {
  QJsonObject const first = object(types_.first());
  for (FieldType const& type : types_.mid(1)) definitions_.insert(type.name, object(type));
  QJsonObject whole = first;
  whole.insert(QStringLiteral("$defs"), definitions_);
  return whole;
}

// What depends on the kind stands in conditions, and not in alternatives: a validator then tells what is wrong with the
// kind that is there, and not that no kind fits.
QJsonObject SchemaMaker::object(FieldType const& type) {
  FieldParts const parts = partsOf(type.fields, types_);
  QJsonObject schema = described(parts.always);
  schema.insert(QStringLiteral("type"), QStringLiteral("object"));
  QJsonArray conditions;
  for (FieldPart const& one : parts.ofKinds) {
    QJsonObject const isOfKind{{QStringLiteral("properties"), QJsonObject{{parts.kindKey, oneOf(one.kinds)}}},
                               {QStringLiteral("required"), QJsonArray{parts.kindKey}}};
    conditions.append(QJsonObject{{QStringLiteral("if"), isOfKind}, {QStringLiteral("then"), part(type.name, one)}});
  }
  if (!conditions.isEmpty()) schema.insert(QStringLiteral("allOf"), conditions);
  return schema;
}

// A definition of its own, which types that have the same kind share.
QJsonObject SchemaMaker::part(QString const& type, FieldPart const& part) {
  if (!part.type.isEmpty()) return referenceTo(part.type);
  QJsonObject const schema = described(part.fields);
  for (auto it = definitions_.constBegin(); it != definitions_.constEnd(); ++it)
    if (it.value() == schema) return referenceTo(it.key());
  QString name = part.kinds.first();
  name[0] = name[0].toUpper();
  definitions_.insert(type + name, schema);
  return referenceTo(type + name);
}

QJsonObject SchemaMaker::described(QVector<FieldInfo> const& fields) const {
  QJsonObject properties;
  QJsonArray required;
  for (FieldInfo const& info : fields) {
    QString const key = QString::fromUtf8(info.field.key);
    properties.insert(key, field(info));
    if (info.rules.isRequired) required.append(key);
  }
  QJsonObject schema{{QStringLiteral("properties"), properties}};
  if (!required.isEmpty()) schema.insert(QStringLiteral("required"), required);
  return schema;
}

QJsonObject SchemaMaker::field(FieldInfo const& info) const {
  QJsonObject schema = value(info);
  schema.insert(QStringLiteral("title"), QString::fromUtf8(info.field.caption));
  schema.insert(QStringLiteral("description"),
                QString::fromUtf8(info.field.help) + sentenceOf(info.rules.range.unit) + sentenceOf(info.choices));
  if (!info.rules.byDefault.isUndefined() && !info.rules.isDerived)
    schema.insert(QStringLiteral("default"), info.rules.byDefault);
  return schema;
}

QJsonObject SchemaMaker::value(FieldInfo const& info) const {
  switch (info.kind) {
    case Kind::Number: return numberIn(info.rules.range, "number");
    case Kind::Integer: return numberIn(info.rules.range, "integer");
    case Kind::Flag: return {{QStringLiteral("type"), QStringLiteral("boolean")}};
    case Kind::Text: return textOf(info.rules);
    case Kind::Texts: return listOf({{QStringLiteral("type"), QStringLiteral("string")}}, 0);
    case Kind::Numbers: {
      int const count = countOf(info.rules.numbersKind);
      return listOf(numberIn(info.rules.range, "number"), count, count);
    }
    case Kind::Coordinates: return listOf(numberIn(info.rules.range, "number"), 2 * info.rules.minPoints);
    case Kind::NumberList:
      return listOf(numberIn(info.rules.range, "number"), info.rules.counts.min, info.rules.counts.max);
    case Kind::Choice:
    case Kind::Variant: return oneOf(namesOf(info.choices));
    case Kind::Object: return referenceTo(QString::fromUtf8(info.type()));
    case Kind::List: return listOf(referenceTo(QString::fromUtf8(info.type())), info.counts.min, info.counts.max);
  }
  return {};
}

}  // namespace

QJsonObject jsonSchema(StoredFormat const& format) {
  QJsonObject schema = SchemaMaker(typesOf(QString::fromUtf8(format.name), format.fields())).schema();
  schema.insert(QStringLiteral("$schema"), QStringLiteral("https://json-schema.org/draft/2020-12/schema"));
  schema.insert(QStringLiteral("$comment"), format.untold().join(QLatin1Char(' ')));
  schema.insert(QStringLiteral("title"), QString::fromUtf8(format.title));
  return schema;
}
