#include "JsonFields.h"

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

bool JsonFields::isFew(Field const& field, int count, int max) {
  if (count > max) fail(field.key, Fields::tr("holds %1 entries; at most %2").arg(count).arg(max));
  return count <= max;
}

bool JsonFields::isEven(Field const& field, int count) {
  if (count % 2) fail(field.key, Fields::tr("holds an odd count of numbers"));
  return count % 2 == 0;
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

// As above; a missing field has its default.
template <class Value>
std::optional<QJsonValue> JsonReader::take(Field const& field, QJsonValue::Type type, Value& value,
                                           std::optional<Value> const& byDefault) {
  auto const taken = take(field, type, !byDefault);
  if (!taken && ok() && byDefault) value = *byDefault;
  return taken;
}

void JsonReader::number(Field const& field, double& value, Range const& range, std::optional<double> byDefault) {
  auto const json = take(field, QJsonValue::Double, value, byDefault);
  if (json && isWithin(field, json->toDouble(), range)) value = json->toDouble();
}

void JsonReader::integer(Field const& field, int& value, int min, int max, std::optional<int> byDefault) {
  auto const json = take(field, QJsonValue::Double, value, byDefault);
  if (!json || !isWithin(field, json->toDouble(), {double(min), double(max)})) return;
  double const number = json->toDouble();
  if (number != std::floor(number)) return fail(field.key, Fields::tr("%1 is not a whole number").arg(shown(number)));
  value = static_cast<int>(number);
}

void JsonReader::flag(Field const& field, bool& value, std::optional<bool> byDefault) {
  if (auto const json = take(field, QJsonValue::Bool, value, byDefault)) value = json->toBool();
}

void JsonReader::text(Field const& field, QString& value, TextKind kind, std::optional<QString> byDefault) {
  auto const json = take(field, QJsonValue::String, value, byDefault);
  if (json && isShort(field, json->toString(), kind)) value = json->toString();
}

void JsonReader::texts(Field const& field, QStringList& values) {
  auto const json = take(field, QJsonValue::Array, values, std::optional<QStringList>(QStringList()));
  if (!json) return;
  QStringList read;
  for (QJsonValue const& entry : json->toArray()) {
    if (!entry.isString()) return failAt(pathOf(field, read.size()), wrongKind(QJsonValue::String, entry));
    read << entry.toString();
  }
  values = read;
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

void JsonReader::numbers(Field const& field, double* values, NumbersKind kind, Range const& range) {
  auto const json = take(field, QJsonValue::Array, true);
  if (!json) return;
  QJsonArray const list = json->toArray();
  if (list.size() != countOf(kind))
    return fail(field.key, Fields::tr("expected %1 numbers, found %2").arg(countOf(kind)).arg(list.size()));
  if (auto const read = takeNumbers(field, list, range)) std::copy(read->begin(), read->end(), values);
}

void JsonReader::coordinates(Field const& field, QVector<double>& values) {
  auto const json = take(field, QJsonValue::Array, true);
  if (!json) return;
  QJsonArray const list = json->toArray();
  double const max = std::numeric_limits<double>::max();
  if (!isEven(field, list.size())) return;
  if (auto const read = takeNumbers(field, list, {-max, max})) values = *read;
}

void JsonReader::choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) {
  auto const json = take(field, QJsonValue::String, value, byDefault);
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

void JsonReader::variant(Field const& field, int& kind, Choices const& kinds,
                         std::function<void(int)> const& describe) {
  choose(field, kind, kinds, std::nullopt);
  if (ok()) describe(kind);
}

void JsonReader::describeChild(QJsonObject const& source, QString const& path, Describe const& describe) {
  JsonReader child(source, path, share());
  describe(child);
  if (shared().warnings.size() < maxWarnings) shared().warnings << child.unknownFields();
}

void JsonReader::object(Field const& field, Describe const& describe) {
  if (auto const json = take(field, QJsonValue::Object, true)) describeChild(json->toObject(), pathOf(field), describe);
}

bool JsonReader::optionalObject(Field const& field, bool, Describe const& describe) {
  auto const json = take(field, QJsonValue::Object, false);
  if (json) describeChild(json->toObject(), pathOf(field), describe);
  return json && ok();
}

void JsonReader::objects(Field const& field, int, int max, std::function<void(Fields&, int)> const& describe) {
  auto const json = take(field, QJsonValue::Array, false);
  if (!json) return;
  QJsonArray const list = json->toArray();
  if (!isFew(field, list.size(), max)) return;
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

void JsonWriter::number(Field const& field, double& value, Range const& range, std::optional<double> byDefault) {
  if (value != byDefault && isWithin(field, value, range)) put(field, value);
}

void JsonWriter::integer(Field const& field, int& value, int min, int max, std::optional<int> byDefault) {
  if (value != byDefault && isWithin(field, value, {double(min), double(max)})) put(field, value);
}

void JsonWriter::flag(Field const& field, bool& value, std::optional<bool> byDefault) {
  if (value != byDefault) put(field, value);
}

void JsonWriter::text(Field const& field, QString& value, TextKind kind, std::optional<QString> byDefault) {
  if (value != byDefault && isShort(field, value, kind)) put(field, value);
}

void JsonWriter::texts(Field const& field, QStringList& values) {
  if (!values.isEmpty()) put(field, QJsonArray::fromStringList(values));
}

void JsonWriter::putNumbers(Field const& field, double const* values, int count, Range const& range) {
  QJsonArray list;
  for (int i = 0; i < count; ++i) {
    if (!isWithin(field, values[i], range, i)) return;
    list.append(values[i]);
  }
  put(field, list);
}

void JsonWriter::numbers(Field const& field, double* values, NumbersKind kind, Range const& range) {
  putNumbers(field, values, countOf(kind), range);
}

void JsonWriter::coordinates(Field const& field, QVector<double>& values) {
  double const max = std::numeric_limits<double>::max();
  if (isEven(field, values.size())) putNumbers(field, values.constData(), values.size(), {-max, max});
}

void JsonWriter::choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) {
  if (value == byDefault) return;
  for (Choice const& choice : choices)
    if (choice.value == value) return put(field, QString::fromUtf8(choice.name));
  fail(field.key, Fields::tr("%1 is a choice without a name").arg(value));
}

void JsonWriter::variant(Field const& field, int& kind, Choices const& kinds,
                         std::function<void(int)> const& describe) {
  choose(field, kind, kinds, std::nullopt);
  if (ok()) describe(kind);
}

QJsonObject JsonWriter::describeChild(QString const& path, Describe const& describe) {
  JsonWriter child(path, share());
  describe(child);
  return child.object_;
}

void JsonWriter::object(Field const& field, Describe const& describe) {
  put(field, describeChild(pathOf(field), describe));
}

bool JsonWriter::optionalObject(Field const& field, bool present, Describe const& describe) {
  if (present) object(field, describe);
  return present;
}

void JsonWriter::objects(Field const& field, int count, int max, std::function<void(Fields&, int)> const& describe) {
  if (!isFew(field, count, max)) return;
  QJsonArray written;
  for (int i = 0; i < count && ok(); ++i)
    written.append(describeChild(pathOf(field, i), [&](Fields& child) { describe(child, i); }));
  if (count) put(field, written);
}

}  // namespace SysUtility
