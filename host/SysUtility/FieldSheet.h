#pragma once

#include "host/SysUtility/FieldTree.h"

namespace SysUtility {

/// A field of something with the value that it has.
struct SheetField {
  FieldInfo info;              ///< without `fields` and `variants`
  QJsonValue value;            ///< as a document has it, also where it is the default; undefined for objects and lists
  bool isPresent = true;       ///< false for an object that may be missing and is
  QVector<SheetField> fields;  ///< of an object; the entries of a list, as objects
  QVector<QJsonValue> others;  ///< of the same field of others that are looked at, too
  QString remark;              ///< what a person is to know of the value; mostly empty

  QString key() const { return QString::fromUtf8(info.field.key); }
};

/// Looks at the fields that something has, with their values: of a variant those of its kind, of a list those of each
/// entry.
class SYSUTILITY_EXPORT FieldSheet final : public Fields {
public:
  FieldSheet();
  ~FieldSheet() override;

  QVector<SheetField> const& fields() const { return fields_; }

  bool isReading() const override { return false; }
  QString error() const override { return QString(); }
  void fail(char const*, QString const&) override {}
  void remark(char const* key, QString const& what) override;
  void variant(Field const& field, int& kind, Choices const& kinds, std::function<void(int)> const& describe) override;

protected:
  void value(Field const& field, ValueRef value, ValueRules const& rules) override;
  void choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) override;
  bool nest(Field const& field, std::optional<bool> present, Describe const& describe) override;
  void objects(Field const& field, int count, Counts const& counts,
               std::function<void(Fields&, int)> const& describe) override;

private:
  SheetField& add(Field const& field, FieldInfo::Kind kind, bool isRequired);

  QVector<SheetField> fields_;
};

/// The place in a list of that length which a step of a path names.
std::optional<int> entryNumber(QString const& step, int count);

/// The field at a path: keys, and numbers for the entries of lists, the outermost first. Null where there is none.
SYSUTILITY_EXPORT SheetField const* fieldAt(QVector<SheetField> const& fields, QStringList const& path);

/// The value of a field with all that lies in it, as a document would have it with nothing left out.
SYSUTILITY_EXPORT QJsonValue wholeValue(SheetField const& field);
SYSUTILITY_EXPORT QJsonObject wholeObject(QVector<SheetField> const& fields);

/// The fields that all have, by key, kind and choices, with the values of the first one, and those of the others beside
/// them. Lists of different lengths have no fields.
SYSUTILITY_EXPORT QVector<SheetField> commonFields(QVector<QVector<SheetField>> const& all);

}  // namespace SysUtility
