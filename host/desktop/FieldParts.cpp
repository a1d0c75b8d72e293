#include "FieldParts.h"

#include <algorithm>

using SysUtility::Choice;
using SysUtility::FieldInfo;
using SysUtility::ValueRules;

namespace {

bool areSame(ValueRules const& a, ValueRules const& b) {
  return a.isRequired == b.isRequired && a.byDefault == b.byDefault && a.range.min == b.range.min &&
         a.range.max == b.range.max && a.range.unit == b.range.unit && a.textKind == b.textKind &&
         a.numbersKind == b.numbersKind && a.isFilled == b.isFilled && a.isDerived == b.isDerived &&
         a.minPoints == b.minPoints && a.counts.min == b.counts.min && a.counts.max == b.counts.max;
}

// What lies in an object is told by its type.
bool areSame(FieldInfo const& a, FieldInfo const& b) {
  return a.kind == b.kind && QLatin1String(a.field.key) == QLatin1String(b.field.key) &&
         QLatin1String(a.field.help) == QLatin1String(b.field.help) &&
         QLatin1String(a.type()) == QLatin1String(b.type()) && areSame(a.rules, b.rules) &&
         namesOf(a.choices) == namesOf(b.choices) && a.counts.min == b.counts.min && a.counts.max == b.counts.max;
}

bool areSame(QVector<FieldInfo> const& a, QVector<FieldInfo> const& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](FieldInfo const& one, FieldInfo const& other) { return areSame(one, other); });
}

bool contains(QVector<FieldInfo> const& fields, FieldInfo const& wanted) {
  return std::any_of(fields.begin(), fields.end(), [&](FieldInfo const& field) { return areSame(field, wanted); });
}

void collect(QVector<FieldType>& types, QVector<FieldInfo> const& fields) {
  for (FieldInfo const& info : fields) {
    QString const name = QString::fromUtf8(info.type());
    bool const isNew = std::none_of(types.begin(), types.end(), [&](FieldType const& t) { return t.name == name; });
    if (!info.fields.isEmpty() && isNew) {
      types << FieldType{name, info.fields};
      collect(types, info.fields);
    }
    for (QVector<FieldInfo> const& variant : info.variants) collect(types, variant);
  }
}

// The type, with fewer kinds, of objects that are nothing but one of their kinds, and have this one, too.
QString typeWith(FieldInfo const& variant, int kind, QVector<FieldType> const& types) {
  for (FieldType const& type : types) {
    FieldInfo const other = type.fields.size() == 1 ? type.fields.first() : FieldInfo();
    int const place = namesOf(other.choices).indexOf(QLatin1String(variant.choices[kind].name));
    if (other.kind == FieldInfo::Kind::Variant && other.choices.size() < variant.choices.size() && place >= 0 &&
        areSame(other.variants[place], variant.variants[kind]))
      return type.name;
  }
  return QString();
}

// The fields that all kinds of a variant have.
QVector<FieldInfo> commonOf(FieldInfo const& variant) {
  QVector<FieldInfo> common;
  for (FieldInfo const& field : variant.variants.value(0))
    if (std::all_of(variant.variants.begin(), variant.variants.end(),
                    [&](QVector<FieldInfo> const& fields) { return contains(fields, field); }))
      common << field;
  return common;
}

QVector<FieldPart> partsOfKinds(FieldInfo const& variant, QVector<FieldInfo> const& common,
                                QVector<FieldType> const& types) {
  QVector<FieldPart> parts;
  for (int i = 0; i < variant.variants.size(); ++i) {
    FieldPart own{{}, {}, typeWith(variant, i, types)};
    for (FieldInfo const& field : variant.variants[i])
      if (own.type.isEmpty() && !contains(common, field)) own.fields << field;
    if (own.fields.isEmpty() && own.type.isEmpty()) continue;
    auto part = std::find_if(parts.begin(), parts.end(),
                             [&](FieldPart const& p) { return p.type == own.type && areSame(p.fields, own.fields); });
    if (part == parts.end()) part = parts.insert(parts.end(), own);
    part->kinds << QString::fromUtf8(variant.choices[i].name);
  }
  return parts;
}

}  // namespace

QVector<FieldType> typesOf(QString const& name, QVector<FieldInfo> const& fields) {
  QVector<FieldType> types{{name, fields}};
  collect(types, fields);
  return types;
}

FieldParts partsOf(QVector<FieldInfo> const& fields, QVector<FieldType> const& types) {
  FieldParts parts;
  bool const isKindOnly = fields.size() == 1;
  for (FieldInfo const& field : fields) {
    parts.always << field;
    if (field.kind != FieldInfo::Kind::Variant) continue;
    QVector<FieldInfo> const common = commonOf(field);
    parts.always << common;
    parts.kindKey = QString::fromUtf8(field.field.key);
    parts.ofKinds = partsOfKinds(field, common, isKindOnly ? types : QVector<FieldType>());
  }
  return parts;
}

QStringList namesOf(QVector<Choice> const& choices) {
  QStringList names;
  for (Choice const& choice : choices) names << QString::fromUtf8(choice.name);
  return names;
}
