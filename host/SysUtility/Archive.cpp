#include "Archive.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace SysUtility {

namespace {

QString translated(char const* text) { return QCoreApplication::translate("Archive", text); }

// Texts of a document, as they are shown in a message: short, and with nothing that a terminal would obey.
QString shown(QString text) {
  text.truncate(64);
  for (QChar& character : text)
    if (!character.isPrint() && !character.isSurrogate()) character = QChar::ReplacementCharacter;
  return text;
}

QString shown(double value) { return QString::number(value, 'g', 12); }

QString kindOf(QJsonValue const& value) {
  switch (value.type()) {
    case QJsonValue::Bool: return translated("true or false");
    case QJsonValue::Double: return translated("a number");
    case QJsonValue::String: return translated("a text");
    case QJsonValue::Array: return translated("a list");
    case QJsonValue::Object: return translated("an object");
    case QJsonValue::Null: return translated("null");
    case QJsonValue::Undefined: break;
  }
  return translated("nothing");
}

QString wrongKind(QString const& expected, QJsonValue const& value) {
  return translated("expected %1, found %2").arg(expected, kindOf(value));
}

QString outOfRange(double value, double min, double max) {
  return translated("%1 is not between %2 and %3").arg(shown(value), shown(min), shown(max));
}

QString tooLong(QString const& text, int most) {
  return translated("the text has %1 characters; at most %2").arg(text.size()).arg(most);
}

int const mostWarnings = 100;

}  // namespace

struct Archive::Shared {
  bool reading;
  QString error;
  QStringList warnings;
};

Archive::Archive() : shared_(std::make_shared<Shared>()) { shared_->reading = false; }

Archive::Archive(QJsonObject source) : object_(std::move(source)), shared_(std::make_shared<Shared>()) {
  shared_->reading = true;
}

Archive::Archive(QJsonObject source, QString path, std::shared_ptr<Shared> shared)
    : object_(std::move(source)), path_(std::move(path)), shared_(std::move(shared)) {}

Archive::~Archive() = default;

bool Archive::reading() const { return shared_->reading; }
bool Archive::ok() const { return shared_->error.isEmpty(); }
QString Archive::error() const { return shared_->error; }
QJsonObject Archive::json() const { return object_; }
QStringList Archive::warnings() const { return (shared_->warnings + unknownFields()).mid(0, mostWarnings); }

// A description that stopped at a problem has not come to the rest of the fields, so nothing is known about them.
QStringList Archive::unknownFields() const {
  QStringList unknown;
  if (!reading() || !ok()) return unknown;
  for (auto field = object_.begin(); field != object_.end() && unknown.size() < mostWarnings; ++field)
    if (!asked_.contains(field.key())) unknown << pathOf(field.key());
  return unknown;
}

bool Archive::has(char const* key) {
  QString const name = QString::fromUtf8(key);
  asked_.insert(name);
  return !reading() || object_.contains(name);
}

void Archive::fail(char const* key, QString const& what) { failAt(key ? pathOf(QString::fromUtf8(key)) : path_, what); }

void Archive::failAt(QString const& path, QString const& what) {
  if (ok()) shared_->error = path.isEmpty() ? what : path + QStringLiteral(": ") + what;
}

QString Archive::pathOf(QString const& name) const {
  return path_.isEmpty() ? shown(name) : path_ + QLatin1Char('.') + shown(name);
}

QString Archive::pathOf(char const* key, int number) const {
  return QStringLiteral("%1[%2]").arg(pathOf(QString::fromUtf8(key))).arg(number);
}

// The value of a field that is being read; undefined where there is none or where reading has stopped.
QJsonValue Archive::take(char const* key, bool required) {
  QString const name = QString::fromUtf8(key);
  asked_.insert(name);
  if (!ok()) return QJsonValue(QJsonValue::Undefined);
  QJsonValue const value = object_.value(name);
  if (required && value.isUndefined()) fail(key, translated("is missing"));
  return value;
}

// The list in a field; an empty one where the field may be missing. Nothing where there is a problem.
std::optional<QJsonArray> Archive::takeList(char const* key, bool required) {
  QJsonValue const json = take(key, required);
  if (!ok()) return std::nullopt;
  if (json.isArray() || json.isUndefined()) return json.toArray();
  fail(key, wrongKind(translated("a list"), json));
  return std::nullopt;
}

void Archive::put(char const* key, QJsonValue const& value) { object_.insert(QString::fromUtf8(key), value); }

// True where the default settles a field: writing leaves it out, or reading finds none.
template <class Value>
bool Archive::settled(char const* key, Value& value, Value const& byDefault) {
  if (!reading()) return value == byDefault;
  if (has(key)) return false;
  if (ok()) value = byDefault;
  return true;
}

// What can't be read again is a problem already when it is written, while the old file is still there.
void Archive::number(char const* key, double& value, double min, double max) {
  double number = value;
  if (reading()) {
    QJsonValue const json = take(key, true);
    if (!ok()) return;
    if (!json.isDouble()) return fail(key, wrongKind(translated("a number"), json));
    number = json.toDouble();
  }
  if (!std::isfinite(number) || number < min || number > max) return fail(key, outOfRange(number, min, max));
  if (reading())
    value = number;
  else
    put(key, number);
}

void Archive::number(char const* key, double& value, double min, double max, double byDefault) {
  if (!settled(key, value, byDefault)) number(key, value, min, max);
}

void Archive::integer(char const* key, int& value, int min, int max) {
  double number = value;
  this->number(key, number, min, max);
  if (!reading() || !ok()) return;
  if (number != std::floor(number)) return fail(key, translated("%1 is not a whole number").arg(shown(number)));
  value = static_cast<int>(number);
}

void Archive::integer(char const* key, int& value, int min, int max, int byDefault) {
  if (!settled(key, value, byDefault)) integer(key, value, min, max);
}

void Archive::flag(char const* key, bool& value) {
  if (!reading()) return put(key, value);
  QJsonValue const json = take(key, true);
  if (!ok()) return;
  if (!json.isBool()) return fail(key, wrongKind(translated("true or false"), json));
  value = json.toBool();
}

void Archive::flag(char const* key, bool& value, bool byDefault) {
  if (!settled(key, value, byDefault)) flag(key, value);
}

void Archive::text(char const* key, QString& value, int most) {
  QString text = value;
  if (reading()) {
    QJsonValue const json = take(key, true);
    if (!ok()) return;
    if (!json.isString()) return fail(key, wrongKind(translated("a text"), json));
    text = json.toString();
  }
  if (text.size() > most) return fail(key, tooLong(text, most));
  if (reading())
    value = text;
  else
    put(key, text);
}

void Archive::text(char const* key, QString& value, QString const& byDefault) {
  if (!settled(key, value, byDefault)) text(key, value);
}

void Archive::texts(char const* key, QStringList& values) {
  if (!reading()) {
    if (!values.isEmpty()) put(key, QJsonArray::fromStringList(values));
    return;
  }
  auto const list = takeList(key, false);
  if (!list) return;
  QStringList read;
  for (QJsonValue const& entry : *list) {
    if (!entry.isString()) return failAt(pathOf(key, read.size()), wrongKind(translated("a text"), entry));
    read << entry.toString();
  }
  values = read;
}

// The numbers of a list, each checked; nothing where there is a problem.
std::optional<QVector<double>> Archive::takeNumbers(char const* key, QJsonArray const& list, double min, double max) {
  QVector<double> read;
  read.reserve(list.size());
  for (QJsonValue const& entry : list) {
    double const number = entry.toDouble();
    if (!entry.isDouble())
      failAt(pathOf(key, read.size()), wrongKind(translated("a number"), entry));
    else if (!std::isfinite(number) || number < min || number > max)
      failAt(pathOf(key, read.size()), outOfRange(number, min, max));
    if (!ok()) return std::nullopt;
    read << number;
  }
  return read;
}

void Archive::putNumbers(char const* key, double const* values, int count, double min, double max) {
  QJsonArray list;
  for (int i = 0; i < count; ++i) {
    if (!std::isfinite(values[i]) || values[i] < min || values[i] > max)
      return failAt(pathOf(key, i), outOfRange(values[i], min, max));
    list.append(values[i]);
  }
  put(key, list);
}

void Archive::numbers(char const* key, double* values, int count, double min, double max) {
  if (!reading()) return putNumbers(key, values, count, min, max);
  auto const list = takeList(key, true);
  if (!list) return;
  if (list->size() != count) return fail(key, translated("expected %1 numbers, found %2").arg(count).arg(list->size()));
  if (auto const read = takeNumbers(key, *list, min, max)) std::copy(read->begin(), read->end(), values);
}

void Archive::coordinates(char const* key, QVector<double>& values) {
  double const most = std::numeric_limits<double>::max();
  if (values.size() % 2 && !reading()) return fail(key, translated("holds an odd count of numbers"));
  if (!reading()) return putNumbers(key, values.constData(), values.size(), -most, most);
  auto const list = takeList(key, true);
  if (!list) return;
  if (list->size() % 2) return fail(key, translated("holds an odd count of numbers"));
  if (auto const read = takeNumbers(key, *list, -most, most)) values = *read;
}

void Archive::choiceValue(char const* key, int& value, std::initializer_list<ChoiceName> names, int byDefault) {
  bool const hasDefault = byDefault != std::numeric_limits<int>::min();
  if (hasDefault && settled(key, value, byDefault)) return;
  if (!reading()) {
    for (ChoiceName const& choice : names)
      if (choice.value == value) return put(key, QString::fromUtf8(choice.name));
    return fail(key, translated("%1 is a choice without a name").arg(value));
  }
  QString name;
  text(key, name);
  if (!ok()) return;
  QStringList known;
  for (ChoiceName const& choice : names) {
    known << QString::fromUtf8(choice.name);
    if (name != known.last()) continue;
    value = choice.value;
    return;
  }
  fail(key, translated("“%1” is not one of %2").arg(shown(name), known.join(QStringLiteral(", "))));
}

QJsonObject Archive::describeChild(QJsonObject const& source, QString const& path, Describe const& describe) {
  Archive child(source, path, shared_);
  describe(child);
  if (shared_->warnings.size() < mostWarnings) shared_->warnings << child.unknownFields();
  return child.object_;
}

void Archive::object(char const* key, Describe const& describe) {
  if (has(key))
    optionalObject(key, true, describe);
  else
    fail(key, translated("is missing"));
}

bool Archive::optionalObject(char const* key, bool present, Describe const& describe) {
  QString const path = pathOf(QString::fromUtf8(key));
  if (!reading()) {
    if (present) put(key, describeChild(QJsonObject(), path, describe));
    return present;
  }
  QJsonValue const json = take(key, false);
  if (!ok() || json.isUndefined()) return false;
  if (json.isObject())
    describeChild(json.toObject(), path, describe);
  else
    fail(key, wrongKind(translated("an object"), json));
  return ok();
}

void Archive::list(char const* key, int count, int most, std::function<void(Archive&, int)> const& describe) {
  QJsonArray objects;
  if (reading()) {
    auto const list = takeList(key, false);
    if (!list) return;
    objects = *list;
    count = objects.size();
  }
  if (count > most) return fail(key, translated("holds %1 entries; at most %2").arg(count).arg(most));
  QJsonArray written;
  for (int i = 0; i < count && ok(); ++i) {
    QJsonValue const entry = reading() ? objects.at(i) : QJsonValue(QJsonObject());
    if (!entry.isObject()) return failAt(pathOf(key, i), wrongKind(translated("an object"), entry));
    auto const describeEntry = [&](Archive& child) { describe(child, i); };
    QJsonObject const object = describeChild(entry.toObject(), pathOf(key, i), describeEntry);
    if (!reading()) written.append(object);
  }
  if (!reading() && count) put(key, written);
}

}  // namespace SysUtility
