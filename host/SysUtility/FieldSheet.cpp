#include "FieldSheet.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace SysUtility {

namespace {

QJsonValue jsonOf(double const* number, ValueRules const&) { return *number; }
QJsonValue jsonOf(int const* number, ValueRules const&) { return *number; }
QJsonValue jsonOf(bool const* flag, ValueRules const&) { return *flag; }
QJsonValue jsonOf(QString const* text, ValueRules const&) { return *text; }
QJsonValue jsonOf(QStringList const* texts, ValueRules const&) { return QJsonArray::fromStringList(*texts); }
QJsonValue jsonOf(NumbersRef numbers, ValueRules const& rules) {
  QJsonArray list;
  for (int i = 0; i < countOf(rules.numbersKind); ++i) list.append(numbers.first[i]);
  return list;
}
QJsonValue jsonOf(QVector<double> const* numbers, ValueRules const&) {
  QJsonArray list;
  for (double const number : *numbers) list.append(number);
  return list;
}
QJsonValue jsonOf(NumberListRef numbers, ValueRules const& rules) { return jsonOf(numbers.numbers, rules); }

}  // namespace

std::optional<int> entryNumber(QString const& step, int count) {
  bool isNumber = false;
  int const number = step.toInt(&isNumber);
  if (isNumber && number >= 0 && number < count) return number;
  return std::nullopt;
}

FieldSheet::FieldSheet() = default;
FieldSheet::~FieldSheet() = default;

SheetField& FieldSheet::add(Field const& field, FieldInfo::Kind kind, bool isRequired) {
  SheetField added;
  added.info.field = field;
  added.info.kind = kind;
  added.info.rules.isRequired = isRequired;
  added.value = QJsonValue::Undefined;
  fields_ << added;
  return fields_.last();
}

void FieldSheet::remark(char const* key, QString const& what) {
  for (SheetField& field : fields_)
    if (qstrcmp(field.info.field.key, key) == 0) field.remark = what;
}

void FieldSheet::value(Field const& field, ValueRef value, ValueRules const& rules) {
  SheetField& added = add(field, kindOf(value), rules.isRequired);
  added.info.rules = rules;
  added.value = std::visit([&](auto source) { return jsonOf(source, rules); }, value);
}

void FieldSheet::choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) {
  SheetField& added = add(field, FieldInfo::Kind::Choice, !byDefault);
  for (Choice const& choice : choices) {
    added.info.choices << choice;
    if (choice.value == byDefault) added.info.rules.byDefault = QString::fromUtf8(choice.name);
    if (choice.value == value) added.value = QString::fromUtf8(choice.name);
  }
}

void FieldSheet::variant(Field const& field, int& kind, Choices const& kinds,
                         std::function<void(int)> const& describe) {
  choose(field, kind, kinds, std::nullopt);
  fields_.last().info.kind = FieldInfo::Kind::Variant;
  if (!fields_.last().value.isUndefined()) describe(kind);
}

bool FieldSheet::nest(Field const& field, std::optional<bool> present, Describe const& describe) {
  FieldSheet inner;
  bool const isPresent = present.value_or(true);
  if (isPresent) describe(inner);
  SheetField& added = add(field, FieldInfo::Kind::Object, !present);
  added.isPresent = isPresent;
  added.fields = inner.fields_;
  return isPresent;
}

void FieldSheet::objects(Field const& field, int count, Counts const& counts,
                         std::function<void(Fields&, int)> const& describe) {
  QVector<SheetField> entries;
  for (int i = 0; i < count; ++i) {
    FieldSheet inner;
    describe(inner, i);
    SheetField entry;
    entry.info.field = field;
    entry.value = QJsonValue::Undefined;
    entry.fields = inner.fields_;
    entries << entry;
  }
  SheetField& list = add(field, FieldInfo::Kind::List, counts.min > 0);
  list.info.counts = counts;
  list.fields = entries;
}

SheetField const* fieldAt(QVector<SheetField> const& fields, QStringList const& path) {
  QVector<SheetField> const* level = &fields;
  SheetField const* found = nullptr;
  bool inList = false;
  for (QString const& step : path) {
    auto const number = inList ? entryNumber(step, level->size()) : std::nullopt;
    found = number ? &level->at(*number) : nullptr;
    if (!inList)
      for (SheetField const& field : *level)
        if (step == QLatin1String(field.info.field.key)) found = &field;
    if (!found) return nullptr;
    inList = found->info.kind == FieldInfo::Kind::List;
    level = &found->fields;
  }
  return found;
}

QJsonValue wholeValue(SheetField const& field) {
  if (field.info.kind == FieldInfo::Kind::Object)
    return field.isPresent ? QJsonValue(wholeObject(field.fields)) : QJsonValue(QJsonValue::Null);
  if (field.info.kind != FieldInfo::Kind::List) return field.value;
  QJsonArray entries;
  for (SheetField const& entry : field.fields) entries.append(wholeObject(entry.fields));
  return entries;
}

QJsonObject wholeObject(QVector<SheetField> const& fields) {
  QJsonObject object;
  for (SheetField const& field : fields) object.insert(field.key(), wholeValue(field));
  return object;
}

namespace {

bool isAlike(SheetField const& a, SheetField const& b) {
  auto const isSame = [](Choice const& one, Choice const& other) {
    return one.value == other.value && qstrcmp(one.name, other.name) == 0;
  };
  auto const &choices = a.info.choices, &others = b.info.choices;
  return a.info.kind == b.info.kind && qstrcmp(a.info.field.key, b.info.field.key) == 0 &&
         std::equal(choices.begin(), choices.end(), others.begin(), others.end(), isSame);
}

// Leaves what the other has, too; the first that is alike counts.
void keepCommon(QVector<SheetField>& fields, QVector<SheetField> const& other) {
  for (int i = 0; i < fields.size();) {
    SheetField& field = fields[i];
    auto const same =
        std::find_if(other.begin(), other.end(), [&](SheetField const& one) { return isAlike(field, one); });
    if (same == other.end()) {
      fields.remove(i);
      continue;
    }
    field.others << wholeValue(*same);
    bool const isList = field.info.kind == FieldInfo::Kind::List;
    if (isList && field.fields.size() != same->fields.size())
      field.fields.clear();
    else if (isList)
      for (int j = 0; j < field.fields.size(); ++j) keepCommon(field.fields[j].fields, same->fields.at(j).fields);
    else
      keepCommon(field.fields, same->fields);
    ++i;
  }
}

}  // namespace

QVector<SheetField> commonFields(QVector<QVector<SheetField>> const& all) {
  QVector<SheetField> common = all.value(0);
  for (auto const& other : all.mid(1)) keepCommon(common, other);
  return common;
}

}  // namespace SysUtility
