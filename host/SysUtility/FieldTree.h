#pragma once

#include "host/SysUtility/Fields.h"

namespace SysUtility {

/// What is known of a field without its value.
struct FieldInfo {
  enum class Kind {
    Number,
    Integer,
    Flag,
    Text,
    Texts,
    Numbers,
    Coordinates,
    NumberList,
    Choice,
    Variant,
    Object,
    List
  };

  Field field{};
  Kind kind = Kind::Object;
  ValueRules rules;           ///< of a choice the default is its name
  QVector<Choice> choices;    ///< of a choice or a variant
  Counts counts{0, 0};        ///< of a list
  QVector<FieldInfo> fields;  ///< of an object, or of each object of a list; none where it is in its own kind
  QVector<QVector<FieldInfo>> variants;  ///< for each choice of a variant, the fields that it brings

  char const* type() const { return field.type ? field.type : field.key; }
};

/// Of a single value.
SYSUTILITY_EXPORT FieldInfo::Kind kindOf(ValueRef const& value);

/// Looks at which fields there are, for whoever makes a form, a schema or a table of them: an object that
/// `Settings::list` or a function like it visits with new settings. What lies in an object of its own type (the members
/// of a group) is named, and not entered again. A kind of a variant that is refused where it stands is left out.
class SYSUTILITY_EXPORT FieldTree final : public Fields {
public:
  explicit FieldTree(QStringList outerTypes = {});
  ~FieldTree() override;

  QVector<FieldInfo> const& fields() const { return fields_; }

  bool isReading() const override { return false; }
  QString error() const override { return QString(); }
  void fail(char const* key, QString const& what) override;
  void variant(Field const& field, int& kind, Choices const& kinds, std::function<void(int)> const& describe) override;

protected:
  void value(Field const& field, ValueRef value, ValueRules const& rules) override;
  void choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) override;
  bool nest(Field const& field, std::optional<bool> present, Describe const& describe) override;
  void objects(Field const& field, int count, Counts const& counts,
               std::function<void(Fields&, int)> const& describe) override;

private:
  FieldInfo& add(Field const& field, FieldInfo::Kind kind, bool isRequired);
  QVector<FieldInfo> fieldsOf(Field const& field, Describe const& describe) const;

  QStringList const outerTypes_;
  QVector<FieldInfo> fields_;
  QString failedKey_;
};

}  // namespace SysUtility
