#include "JsonFields.h"

#include <algorithm>
#include <cmath>

namespace SysUtility {

namespace {

int const maxWarnings = 100;
int const maxShown = 64;

// Texts of a document, as they are shown in a message: short, and with nothing that a terminal would obey.
QString shown(QString text) {
  text.truncate(maxShown);
  for (QChar& character : text)
    if (!character.isPrint() && !character.isSurrogate()) character = QChar::ReplacementCharacter;
  return text;
}

QString shown(double value) { return QString::number(value, 'g', 12); }

}  // namespace

JsonFields::JsonFields(QString path, std::shared_ptr<Shared> shared)
    : path_(std::move(path)), shared_(std::move(shared)) {}
JsonFields::~JsonFields() = default;

QString JsonFields::error() const { return shared_->error; }

void JsonFields::fail(char const* key, QString const& what) {
  failAt(key ? pathOf(QString::fromUtf8(key)) : path_, what);
}

void JsonFields::failAt(QString const& path, QString const& what) {
  if (ok()) shared_->error = path.isEmpty() ? what : path + QStringLiteral(": ") + what;
}

QString JsonFields::pathOf(QString const& name) const {
  return path_.isEmpty() ? shown(name) : path_ + QLatin1Char('.') + shown(name);
}
QString JsonFields::pathOf(Field const& field, std::optional<int> entry) const {
  QString const path = pathOf(QString::fromUtf8(field.key));
  return entry ? QStringLiteral("%1[%2]").arg(path, QString::number(*entry)) : path;
}

bool JsonFields::isWithin(Field const& field, double value, Range const& range, std::optional<int> entry) {
  if (std::isfinite(value) && value >= range.min && value <= range.max) return true;
  failAt(pathOf(field, entry),
         Fields::tr("%1 is not between %2 and %3").arg(shown(value), shown(range.min), shown(range.max)));
  return false;
}

bool JsonFields::isShort(Field const& field, QString const& text, TextKind kind) {
  int const max = maxCharacters(kind);
  if (text.size() > max)
    fail(field.key, Fields::tr("the text has %1 characters; at most %2").arg(text.size()).arg(max));
  return text.size() <= max;
}

bool JsonFields::isFilled(Field const& field, QString const& text, ValueRules const& rules) {
  bool const isWell = !rules.isFilled || !text.trimmed().isEmpty();
  if (!isWell) fail(field.key, Fields::tr("is empty; enter a name"));
  return isWell;
}

bool JsonFields::isAllowed(Field const& field, int count, Counts const& counts) {
  if (count > counts.max) fail(field.key, Fields::tr("holds %1 entries; at most %2").arg(count).arg(counts.max));
  if (count < counts.min) fail(field.key, Fields::tr("holds %1 entries; at least %2").arg(count).arg(counts.min));
  return count >= counts.min && count <= counts.max;
}

bool JsonFields::isPairs(Field const& field, int count, ValueRules const& rules) {
  if (count % 2)
    fail(field.key, Fields::tr("holds an odd count of numbers"));
  else if (count < 2 * rules.minPoints)
    fail(field.key, Fields::tr("needs at least %1 points").arg(rules.minPoints));
  return count % 2 == 0 && count >= 2 * rules.minPoints;
}

// Reading

namespace {

QString kindOf(QJsonValue::Type type) {
  switch (type) {
    case QJsonValue::Bool: return Fields::tr("true or false");
    case QJsonValue::Double: return Fields::tr("a number");
    case QJsonValue::String: return Fields::tr("a text");
    case QJsonValue::Array: return Fields::tr("a list");
    case QJsonValue::Object: return Fields::tr("an object");
    case QJsonValue::Null: return Fields::tr("null");
    case QJsonValue::Undefined: break;
  }
  return Fields::tr("nothing");
}

QString wrongKind(QJsonValue::Type expected, QJsonValue const& value) {
  return Fields::tr("expected %1, found %2").arg(kindOf(expected), kindOf(value.type()));
}

}  // namespace

JsonReader::JsonReader(QJsonObject source) : JsonReader(std::move(source), QString(), std::make_shared<Shared>()) {}
JsonReader::JsonReader(QJsonObject source, QString path, std::shared_ptr<Shared> shared)
    : JsonFields(std::move(path), std::move(shared)), object_(std::move(source)) {}
JsonReader::~JsonReader() = default;

QStringList JsonReader::warnings() const { return (shared().warnings + unknownFields()).mid(0, maxWarnings); }

// A description that stopped at a problem has not come to the rest of the fields, so nothing is known about them.
QStringList JsonReader::unknownFields() const {
  QStringList unknown;
  if (!ok()) return unknown;
  for (auto field = object_.begin(); field != object_.end() && unknown.size() < maxWarnings; ++field)
    if (!asked_.contains(field.key())) unknown << pathOf(field.key());
  return unknown;
}

// The value of a field; nothing where there is none or where there is a problem.
std::optional<QJsonValue> JsonReader::take(Field const& field, QJsonValue::Type type, bool required) {
  QString const name = QString::fromUtf8(field.key);
  asked_.insert(name);
  if (!ok()) return std::nullopt;
  auto const found = object_.constFind(name);
  if (found != object_.constEnd()) {
    if (found->type() == type) return *found;
    fail(field.key, wrongKind(type, *found));
  } else if (required) {
    fail(field.key, Fields::tr("is missing"));
  }
  return std::nullopt;
}

namespace {

QJsonValue::Type typeOf(ValueRef const& value) {
  constexpr QJsonValue::Type types[] = {QJsonValue::Double, QJsonValue::Double, QJsonValue::Bool,  QJsonValue::String,
                                        QJsonValue::Array,  QJsonValue::Array,  QJsonValue::Array, QJsonValue::Array};
  static_assert(std::size(types) == std::variant_size_v<ValueRef>);
  return types[value.index()];
}

}  // namespace

void JsonReader::value(Field const& field, ValueRef value, ValueRules const& rules) {
  bool const isAttribute = rules.isFilled && rules.textKind == TextKind::Attribute;
  QString const attribute = isAttribute && shared().attributes ? shared().attributes().value(0) : QString();
  bool const isMadeUp = shared().completes && (!rules.isFilled || !attribute.isEmpty()) &&
                        !std::holds_alternative<QVector<double>*>(value);
  auto const json = take(field, typeOf(value), rules.isRequired && !isMadeUp);
  if (!ok()) return;
  if (json || !rules.isRequired)
    std::visit([&](auto target) { read(field, json.value_or(rules.byDefault), target, rules); }, value);
  else if (auto const number = std::get_if<double*>(&value))
    **number = std::clamp(**number, rules.range.min, rules.range.max);
  else if (auto const whole = std::get_if<int*>(&value))
    **whole = static_cast<int>(std::clamp<double>(**whole, rules.range.min, rules.range.max));
  else if (isAttribute)
    *std::get<QString*>(value) = attribute;
}

void JsonReader::read(Field const& field, QJsonValue const& json, double* value, ValueRules const& rules) {
  if (isWithin(field, json.toDouble(), rules.range)) *value = json.toDouble();
}

void JsonReader::read(Field const& field, QJsonValue const& json, int* value, ValueRules const& rules) {
  double const number = json.toDouble();
  if (!isWithin(field, number, rules.range)) return;
  if (number != std::floor(number)) return fail(field.key, Fields::tr("%1 is not a whole number").arg(shown(number)));
  *value = static_cast<int>(number);
}

void JsonReader::read(Field const&, QJsonValue const& json, bool* value, ValueRules const&) { *value = json.toBool(); }

void JsonReader::read(Field const& field, QJsonValue const& json, QString* value, ValueRules const& rules) {
  QString const text = json.toString();
  if (isShort(field, text, rules.textKind) && isFilled(field, text, rules)) *value = text;
}

void JsonReader::read(Field const& field, QJsonValue const& json, QStringList* values, ValueRules const&) {
  QStringList read;
  for (QJsonValue const& entry : json.toArray()) {
    if (!entry.isString()) return failAt(pathOf(field, read.size()), wrongKind(QJsonValue::String, entry));
    read << entry.toString();
  }
  *values = read;
}

// The numbers of a list, each checked; nothing where there is a problem.
std::optional<QVector<double>> JsonReader::takeNumbers(Field const& field, QJsonArray const& list, Range const& range) {
  QVector<double> read;
  read.reserve(list.size());
  for (QJsonValue const& entry : list) {
    if (!entry.isDouble()) failAt(pathOf(field, read.size()), wrongKind(QJsonValue::Double, entry));
    if (!ok()) return std::nullopt;
    if (!isWithin(field, entry.toDouble(), range, read.size())) return std::nullopt;
    read << entry.toDouble();
  }
  return read;
}

void JsonReader::read(Field const& field, QJsonValue const& json, NumbersRef values, ValueRules const& rules) {
  QJsonArray const list = json.toArray();
  int const count = countOf(rules.numbersKind);
  if (list.size() != count)
    return fail(field.key, Fields::tr("expected %1 numbers, found %2").arg(count).arg(list.size()));
  if (auto const read = takeNumbers(field, list, rules.range)) std::copy(read->begin(), read->end(), values.first);
}

void JsonReader::read(Field const& field, QJsonValue const& json, QVector<double>* values, ValueRules const& rules) {
  QJsonArray const list = json.toArray();
  if (!isPairs(field, list.size(), rules)) return;
  if (auto const read = takeNumbers(field, list, rules.range)) *values = *read;
}

void JsonReader::read(Field const& field, QJsonValue const& json, NumberListRef values, ValueRules const& rules) {
  QJsonArray const list = json.toArray();
  if (!isAllowed(field, list.size(), rules.counts)) return;
  if (auto const read = takeNumbers(field, list, rules.range)) *values.numbers = *read;
}

void JsonReader::choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) {
  auto const json = take(field, QJsonValue::String, !byDefault && !shared().completes);
  if (!json && ok()) value = byDefault.value_or(choices.begin()->value);
  if (!json || !isShort(field, json->toString(), TextKind::Line)) return;
  QStringList known;
  for (Choice const& choice : choices) {
    known << QString::fromUtf8(choice.name);
    if (json->toString() != known.last()) continue;
    value = choice.value;
    return;
  }
  fail(field.key, Fields::tr("“%1” is not one of %2").arg(shown(json->toString()), known.join(QStringLiteral(", "))));
}

void JsonReader::describeChild(QJsonObject const& source, QString const& path, Describe const& describe) {
  JsonReader child(source, path, share());
  describe(child);
  if (shared().warnings.size() < maxWarnings) shared().warnings << child.unknownFields();
}

bool JsonReader::nest(Field const& field, std::optional<bool> present, Describe const& describe) {
  auto json = take(field, QJsonValue::Object, !present && !shared().completes);
  if (!json && !present && ok()) json = QJsonObject();
  if (json) describeChild(json->toObject(), pathOf(field), describe);
  return json && ok();
}

void JsonReader::objects(Field const& field, int, Counts const& counts,
                         std::function<void(Fields&, int)> const& describe) {
  bool const isMadeUp = shared().completes && counts.min > 0;
  auto json = take(field, QJsonValue::Array, counts.min > 0 && !isMadeUp);
  if (!json && isMadeUp && ok()) {
    QJsonArray made;
    for (int i = 0; i < counts.min; ++i) made.append(QJsonObject());
    json = made;
  }
  if (!json) return;
  QJsonArray const list = json->toArray();
  if (!isAllowed(field, list.size(), counts)) return;
  for (int i = 0; i < list.size() && ok(); ++i) {
    if (!list.at(i).isObject()) return failAt(pathOf(field, i), wrongKind(QJsonValue::Object, list.at(i)));
    describeChild(list.at(i).toObject(), pathOf(field, i), [&](Fields& child) { describe(child, i); });
  }
}

// Writing

JsonWriter::JsonWriter() : JsonWriter(QString(), std::make_shared<Shared>()) {}
JsonWriter::JsonWriter(QString path, std::shared_ptr<Shared> shared) : JsonFields(std::move(path), std::move(shared)) {}
JsonWriter::~JsonWriter() = default;

void JsonWriter::put(Field const& field, QJsonValue const& value) {
  object_.insert(QString::fromUtf8(field.key), value);
}

void JsonWriter::value(Field const& field, ValueRef value, ValueRules const& rules) {
  std::visit([&](auto source) { write(field, source, rules); }, value);
}

void JsonWriter::write(Field const& field, double const* value, ValueRules const& rules) {
  if (rules.byDefault != *value && isWithin(field, *value, rules.range)) put(field, *value);
}

void JsonWriter::write(Field const& field, int const* value, ValueRules const& rules) {
  if (rules.byDefault != *value && isWithin(field, *value, rules.range)) put(field, *value);
}

void JsonWriter::write(Field const& field, bool const* value, ValueRules const& rules) {
  if (rules.byDefault != *value) put(field, *value);
}

void JsonWriter::write(Field const& field, QString const* value, ValueRules const& rules) {
  if (rules.byDefault != *value && isShort(field, *value, rules.textKind) && isFilled(field, *value, rules))
    put(field, *value);
}

void JsonWriter::write(Field const& field, QStringList const* values, ValueRules const&) {
  if (!values->isEmpty()) put(field, QJsonArray::fromStringList(*values));
}

void JsonWriter::write(Field const& field, NumbersRef values, ValueRules const& rules) {
  putNumbers(field, values.first, countOf(rules.numbersKind), rules.range);
}

void JsonWriter::write(Field const& field, QVector<double> const* values, ValueRules const& rules) {
  if (isPairs(field, values->size(), rules)) putNumbers(field, values->constData(), values->size(), rules.range);
}

void JsonWriter::write(Field const& field, NumberListRef values, ValueRules const& rules) {
  QVector<double> const& numbers = *values.numbers;
  if ((rules.isRequired || !numbers.isEmpty()) && isAllowed(field, numbers.size(), rules.counts))
    putNumbers(field, numbers.constData(), numbers.size(), rules.range);
}

void JsonWriter::putNumbers(Field const& field, double const* values, int count, Range const& range) {
  QJsonArray list;
  for (int i = 0; i < count; ++i) {
    if (!isWithin(field, values[i], range, i)) return;
    list.append(values[i]);
  }
  put(field, list);
}

void JsonWriter::choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) {
  if (value == byDefault) return;
  for (Choice const& choice : choices)
    if (choice.value == value) return put(field, QString::fromUtf8(choice.name));
  fail(field.key, Fields::tr("%1 is a choice without a name").arg(value));
}

QJsonObject JsonWriter::describeChild(QString const& path, Describe const& describe) {
  JsonWriter child(path, share());
  describe(child);
  return child.object_;
}

bool JsonWriter::nest(Field const& field, std::optional<bool> present, Describe const& describe) {
  bool const isThere = present.value_or(true);
  if (isThere) put(field, describeChild(pathOf(field), describe));
  return isThere;
}

void JsonWriter::objects(Field const& field, int count, Counts const& counts,
                         std::function<void(Fields&, int)> const& describe) {
  if (!isAllowed(field, count, counts)) return;
  QJsonArray written;
  for (int i = 0; i < count && ok(); ++i) {
    if (shared().goesOn && !shared().goesOn()) return fail(field.key, Fields::tr("was not written to its end"));
    written.append(describeChild(pathOf(field, i), [&](Fields& child) { describe(child, i); }));
  }
  if (count) put(field, written);
}

}  // namespace SysUtility
