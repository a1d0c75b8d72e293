#include "FieldEdit.h"

#include "JsonFields.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <limits>

namespace SysUtility {

namespace {

bool isEntry(QString const& step) {
  return entryNumber(step, std::numeric_limits<int>::max()) || step == QLatin1String("-");
}

}  // namespace

QJsonValue valueOf(QString const& typed, SheetField const* field) {
  using Kind = FieldInfo::Kind;
  bool const isText = field && (field->info.kind == Kind::Text || field->info.kind == Kind::Choice ||
                                field->info.kind == Kind::Variant);
  QJsonArray const parsed = QJsonDocument::fromJson('[' + typed.toUtf8() + ']').array();
  bool const isJson = parsed.size() == 1 && (!isText || parsed.first().isString() || parsed.first().isNull());
  return isJson ? parsed.first() : QJsonValue(typed);
}

QJsonValue withoutNulls(QJsonValue const& value) {
  if (value.isArray()) {
    QJsonArray list;
    for (QJsonValue const& entry : value.toArray()) list.append(withoutNulls(entry));
    return list;
  }
  if (!value.isObject()) return value;
  QJsonObject object = value.toObject();
  for (QString const& key : object.keys()) {
    if (object.value(key).isNull())
      object.remove(key);
    else
      object.insert(key, withoutNulls(object.value(key)));
  }
  return object;
}

namespace {

QJsonValue changed(QJsonValue const& old, QStringList const& path, QJsonValue const& value, QString& problem);

QJsonValue changedList(QJsonArray list, QStringList const& path, QJsonValue const& value, QString& problem) {
  bool const isNew = path.first() == QLatin1String("-");
  auto const number = isNew ? list.size() : entryNumber(path.first(), list.size());
  if (!number) {
    problem = Fields::tr("there is no entry %1 in a list of %2").arg(path.first()).arg(list.size());
    return list;
  }
  QJsonValue const entry = changed(list.at(*number), path.mid(1), value, problem);
  if (entry.isNull())
    list.removeAt(*number);
  else if (isNew)
    list.append(entry);
  else
    list.replace(*number, entry);
  return list;
}

QJsonValue changed(QJsonValue const& old, QStringList const& path, QJsonValue const& value, QString& problem) {
  if (path.isEmpty()) return withoutNulls(value);
  if (old.isArray() || (old.isUndefined() && isEntry(path.first())))
    return changedList(old.toArray(), path, value, problem);
  if (!old.isUndefined() && !old.isObject()) {
    problem = Fields::tr("there is no “%1” in a value").arg(path.first());
    return old;
  }
  QJsonObject object = old.toObject();
  QJsonValue const inner = changed(object.value(path.first()), path.mid(1), value, problem);
  if (inner.isNull())
    object.remove(path.first());
  else
    object.insert(path.first(), inner);
  return object;
}

QJsonObject withValue(QJsonObject const& object, QStringList const& path, QJsonValue const& value, QString& problem) {
  QJsonValue const result = changed(object, path, value, problem);
  return problem.isEmpty() ? result.toObject() : object;
}

// As a reader names the field: “maps[0].name”.
QString dotted(QJsonValue value, QStringList const& path) {
  QString text;
  for (QString const& step : path) {
    if (value.isArray()) {
      int const number = step == QLatin1String("-") ? value.toArray().size() - 1 : step.toInt();
      text += QStringLiteral("[%1]").arg(number);
      value = value.toArray().at(number);
    } else {
      text += (text.isEmpty() ? QString() : QStringLiteral(".")) + step;
      value = value.toObject().value(step);
    }
  }
  return text;
}

// The innermost field on the path that there is.
SheetField const* nearest(QVector<SheetField> const& fields, QStringList const& path) {
  for (int length = path.size(); length > 0; --length)
    if (SheetField const* const field = fieldAt(fields, path.mid(0, length)))
      if (field->info.field.caption) return field;
  return nullptr;
}

QString unknownField(QVector<SheetField> const& fields, QStringList const& path) {
  SheetField const* const parent = nearest(fields, path);
  QStringList known;
  for (SheetField const& field : parent && parent->info.kind == FieldInfo::Kind::Object ? parent->fields : fields)
    known << field.key();
  QString const name = path.join(QLatin1Char('/'));
  if (known.isEmpty()) return Fields::tr("there is no field “%1”").arg(name);
  return Fields::tr("there is no field “%1”; there are %2").arg(name, known.join(QStringLiteral(", ")));
}

}  // namespace

FieldChange changeField(Fields::Describe const& list, Fields::Describe const& read, QStringList const& path,
                        NewValue const& value, std::function<QStringList()> const& attributes) {
  FieldSheet sheet;
  JsonWriter writer;
  list(sheet);
  list(writer);
  SheetField const* const field = fieldAt(sheet.fields(), path);
  SheetField const* const known = nearest(sheet.fields(), path);
  FieldChange change;
  change.caption = known ? known->info.field.caption : nullptr;
  QJsonValue const now = field ? wholeValue(*field) : QJsonValue(QJsonValue::Undefined), wanted = value(now);
  if (now == wanted) return change;

  QJsonObject const whole = withValue(writer.json(), path, wanted, change.problem);
  QString const name = dotted(whole, path);
  // What can't be written would be lost with the change of another field.
  if (change.problem.isEmpty() && !writer.ok() && !writer.error().startsWith(name)) change.problem = writer.error();
  if (!change.problem.isEmpty()) return change;
  if (whole == writer.json()) return change;
  auto const readFrom = [&](QJsonObject const& json) {
    JsonReader reader(json);
    reader.complete(attributes);
    read(reader);
    change.problem = reader.error();
    return reader.warnings();
  };
  QStringList unknown = readFrom(whole);
  // Another kind may want fields of the same name to be something else.
  if (!change.problem.isEmpty() && field && field->info.kind == FieldInfo::Kind::Variant && path.size() > 1) {
    QString none;
    QJsonObject const bare{{path.last(), wanted}};
    unknown = readFrom(withValue(writer.json(), path.mid(0, path.size() - 1), bare, none));
  }
  for (QString const& other : unknown)
    if (name == other || name.startsWith(other + QLatin1Char('.')) || name.startsWith(other + QLatin1Char('[')) ||
        (wanted.isObject() && other.startsWith(name + QLatin1Char('.'))))
      change.problem = unknownField(sheet.fields(), path);
  change.isChange = change.problem.isEmpty();
  return change;
}

}  // namespace SysUtility
