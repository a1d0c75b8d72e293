#pragma once

#include "host/SysUtility/Fields.h"

#include <QJsonValue>

namespace SysUtility {

/// What is known of a field without any value.
struct FieldInfo {
  enum class Kind { Number, Integer, Flag, Text, Texts, Numbers, Coordinates, Choice, Variant, Object, List };

  Field field{};
  Kind kind = Kind::Object;
  bool isRequired = false;
  QJsonValue byDefault = QJsonValue::Undefined;  ///< of a number, a flag, a text, or the name of a choice
  Range range{0, 0};                             ///< of numbers; of a list and of texts, how many they may be
  TextKind textKind = TextKind::Line;
  NumbersKind numbersKind = NumbersKind::Point;
  QVector<Choice> choices;
  QVector<FieldInfo> fields;             ///< of an object, or of each object of a list
  QVector<QVector<FieldInfo>> variants;  ///< for each choice of a variant, the fields that it brings
};

/// Looks at which fields there are, for whoever makes a form, a schema or a table of them: an object that
/// `Settings::list` or a function like it visits with new settings. A list within a list of the same name (the members
/// of a group) is named, and not entered again.
class SYSUTILITY_EXPORT FieldTree final : public Fields {
public:
  explicit FieldTree(QStringList outerLists = {});
  ~FieldTree() override;

  QVector<FieldInfo> const& fields() const { return fields_; }

  bool isReading() const override { return false; }
  QString error() const override { return QString(); }
  void fail(char const*, QString const&) override {}
  void number(Field const& field, double& value, Range const& range, std::optional<double> byDefault) override;
  void integer(Field const& field, int& value, int min, int max, std::optional<int> byDefault) override;
  void flag(Field const& field, bool& value, std::optional<bool> byDefault) override;
  void text(Field const& field, QString& value, TextKind kind, std::optional<QString> byDefault) override;
  void texts(Field const& field, QStringList& values) override;
  void numbers(Field const& field, double* values, NumbersKind kind, Range const& range) override;
  void coordinates(Field const& field, QVector<double>& values) override;
  void variant(Field const& field, int& kind, Choices const& kinds, std::function<void(int)> const& describe) override;
  void object(Field const& field, Describe const& describe) override;
  bool optionalObject(Field const& field, bool present, Describe const& describe) override;

protected:
  void choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) override;
  void objects(Field const& field, int count, int max, std::function<void(Fields&, int)> const& describe) override;

private:
  template <class Value>
  FieldInfo& add(Field const& field, FieldInfo::Kind kind, std::optional<Value> const& byDefault);
  FieldInfo& add(Field const& field, FieldInfo::Kind kind, bool isRequired);
  QVector<FieldInfo> fieldsOf(Describe const& describe) const;

  QStringList const outerLists_;
  QVector<FieldInfo> fields_;
};

}  // namespace SysUtility
