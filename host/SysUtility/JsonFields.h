#pragma once

#include "host/SysUtility/Fields.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>

#include <memory>

namespace SysUtility {

/// What reading and writing JSON have in common: where they are, the first problem, and what a value may be.
class SYSUTILITY_EXPORT JsonFields : public Fields {
public:
  ~JsonFields() override;
  QString error() const override;
  void fail(char const* key, QString const& what) override;

protected:
  struct Shared {
    QString error;
    QStringList warnings;
    bool completes = false;        // reading makes up what must be there and is not
    std::function<bool()> goesOn;  // writing does, asked between the objects of a list
    std::function<QStringList()> attributes;
  };
  JsonFields(QString path, std::shared_ptr<Shared> shared);

  Shared& shared() const { return *shared_; }
  std::shared_ptr<Shared> const& share() const { return shared_; }
  void failAt(QString const& path, QString const& what);
  QString pathOf(QString const& name) const;
  /// `entry` is the number of an entry of the field's list.
  QString pathOf(Field const& field, std::optional<int> entry = {}) const;

  // Each reports a problem with the value of the field, and answers whether there is none.
  bool isWithin(Field const& field, double value, Range const& range, std::optional<int> entry = {});
  bool isShort(Field const& field, QString const& text, TextKind kind);
  bool isFilled(Field const& field, QString const& text, ValueRules const& rules);
  bool isAllowed(Field const& field, int count, Counts const& counts);
  bool isPairs(Field const& field, int count, ValueRules const& rules);

private:
  QString path_;
  std::shared_ptr<Shared> shared_;
};

/// Fills settings from a JSON object and checks every field. A field that nobody asked for is reported as a warning and
/// is otherwise ignored.
class SYSUTILITY_EXPORT JsonReader final : public JsonFields {
public:
  explicit JsonReader(QJsonObject source);
  ~JsonReader() override;

  /// A field that must be there and is not is no problem from now on: it keeps the value that the settings came with, a
  /// number the nearest one of its range, a choice its first, and an object, or each of as many entries as a list must
  /// have, is made of its own fields in the same way. The name of an attribute is the first of those given, which may
  /// be null. Only what can't be made up must still be there: points, and other texts that may not be blank.
  void complete(std::function<QStringList()> const& attributes) {
    shared().completes = true;
    shared().attributes = attributes;
  }

  /// The paths of fields that nobody asked for ("maps[0].layers[2].zoom"), at most 100. Those of the object itself are
  /// known once all its fields have been named.
  QStringList warnings() const;

  bool isReading() const override { return true; }

protected:
  void value(Field const& field, ValueRef value, ValueRules const& rules) override;
  void choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) override;
  bool nest(Field const& field, std::optional<bool> present, Describe const& describe) override;
  void objects(Field const& field, int count, Counts const& counts,
               std::function<void(Fields&, int)> const& describe) override;

private:
  JsonReader(QJsonObject source, QString path, std::shared_ptr<Shared> shared);

  std::optional<QJsonValue> take(Field const& field, QJsonValue::Type type, bool required);
  void read(Field const& field, QJsonValue const& json, double* value, ValueRules const& rules);
  void read(Field const& field, QJsonValue const& json, int* value, ValueRules const& rules);
  void read(Field const& field, QJsonValue const& json, bool* value, ValueRules const& rules);
  void read(Field const& field, QJsonValue const& json, QString* value, ValueRules const& rules);
  void read(Field const& field, QJsonValue const& json, QStringList* values, ValueRules const& rules);
  void read(Field const& field, QJsonValue const& json, NumbersRef values, ValueRules const& rules);
  void read(Field const& field, QJsonValue const& json, QVector<double>* values, ValueRules const& rules);
  void read(Field const& field, QJsonValue const& json, NumberListRef values, ValueRules const& rules);
  std::optional<QVector<double>> takeNumbers(Field const& field, QJsonArray const& list, Range const& range);
  void describeChild(QJsonObject const& source, QString const& path, Describe const& describe);
  QStringList unknownFields() const;

  QJsonObject const object_;
  QSet<QString> asked_;
};

/// Makes a JSON object of settings. What could not be read again (a number out of range, a choice without a name) is a
/// problem, and whoever writes asks `ok` before an old file gives way.
class SYSUTILITY_EXPORT JsonWriter final : public JsonFields {
public:
  JsonWriter();
  ~JsonWriter() override;

  /// Asked before each object of a list from now on, since many take long. Where it answers false, the writer is not
  /// ok, and looks at nothing more.
  void askWhether(std::function<bool()> const& goesOn) { shared().goesOn = goesOn; }

  /// What has been written so far.
  QJsonObject json() const { return object_; }

  bool isReading() const override { return false; }

protected:
  void value(Field const& field, ValueRef value, ValueRules const& rules) override;
  void choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) override;
  bool nest(Field const& field, std::optional<bool> present, Describe const& describe) override;
  void objects(Field const& field, int count, Counts const& counts,
               std::function<void(Fields&, int)> const& describe) override;

private:
  JsonWriter(QString path, std::shared_ptr<Shared> shared);

  void put(Field const& field, QJsonValue const& value);
  void write(Field const& field, double const* value, ValueRules const& rules);
  void write(Field const& field, int const* value, ValueRules const& rules);
  void write(Field const& field, bool const* value, ValueRules const& rules);
  void write(Field const& field, QString const* value, ValueRules const& rules);
  void write(Field const& field, QStringList const* values, ValueRules const& rules);
  void write(Field const& field, NumbersRef values, ValueRules const& rules);
  void write(Field const& field, QVector<double> const* values, ValueRules const& rules);
  void write(Field const& field, NumberListRef values, ValueRules const& rules);
  void putNumbers(Field const& field, double const* values, int count, Range const& range);
  QJsonObject describeChild(QString const& path, Describe const& describe);

  QJsonObject object_;
};

/// Fills settings, `Settings::list(Fields&, context…)`, from JSON. Answers the first problem, or an empty text.
template <class Settings, class... Context>
QString readJson(QJsonObject const& json, Settings& settings, Context&&... context) {
  JsonReader reader(json);
  settings.list(reader, context...);
  return reader.error();
}

}  // namespace SysUtility
