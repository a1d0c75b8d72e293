#include "FieldTree.h"

#include <limits>

namespace SysUtility {

FieldTree::FieldTree(QStringList outerLists) : outerLists_(std::move(outerLists)) {}
FieldTree::~FieldTree() = default;

FieldInfo& FieldTree::add(Field const& field, FieldInfo::Kind kind, bool isRequired) {
  FieldInfo info;
  info.field = field;
  info.kind = kind;
  info.isRequired = isRequired;
  fields_ << info;
  return fields_.last();
}

template <class Value>
FieldInfo& FieldTree::add(Field const& field, FieldInfo::Kind kind, std::optional<Value> const& byDefault) {
  FieldInfo& info = add(field, kind, !byDefault);
  if (byDefault) info.byDefault = *byDefault;
  return info;
}

QVector<FieldInfo> FieldTree::fieldsOf(Describe const& describe) const {
  FieldTree inner(outerLists_);
  describe(inner);
  return inner.fields_;
}

void FieldTree::number(Field const& field, double&, Range const& range, std::optional<double> byDefault) {
  add(field, FieldInfo::Kind::Number, byDefault).range = range;
}

void FieldTree::integer(Field const& field, int&, int min, int max, std::optional<int> byDefault) {
  add(field, FieldInfo::Kind::Integer, byDefault).range = {double(min), double(max)};
}

void FieldTree::flag(Field const& field, bool&, std::optional<bool> byDefault) {
  add(field, FieldInfo::Kind::Flag, byDefault);
}

void FieldTree::text(Field const& field, QString&, TextKind kind, std::optional<QString> byDefault) {
  add(field, FieldInfo::Kind::Text, byDefault).textKind = kind;
}

void FieldTree::texts(Field const& field, QStringList&) { add(field, FieldInfo::Kind::Texts, false); }

void FieldTree::numbers(Field const& field, double*, NumbersKind kind, Range const& range) {
  FieldInfo& info = add(field, FieldInfo::Kind::Numbers, true);
  info.numbersKind = kind;
  info.range = range;
}

void FieldTree::coordinates(Field const& field, QVector<double>&) { add(field, FieldInfo::Kind::Coordinates, true); }

void FieldTree::choose(Field const& field, int&, Choices const& choices, std::optional<int> byDefault) {
  FieldInfo& info = add(field, FieldInfo::Kind::Choice, !byDefault);
  for (Choice const& choice : choices) {
    info.choices << choice;
    if (choice.value == byDefault) info.byDefault = QString::fromUtf8(choice.name);
  }
}

void FieldTree::variant(Field const& field, int&, Choices const& kinds, std::function<void(int)> const& describe) {
  QVector<FieldInfo> before = std::exchange(fields_, {});
  QVector<QVector<FieldInfo>> variants;
  for (Choice const& kind : kinds) {
    describe(kind.value);
    variants << std::exchange(fields_, {});
  }
  fields_ = before;
  FieldInfo& info = add(field, FieldInfo::Kind::Variant, true);
  for (Choice const& kind : kinds) info.choices << kind;
  info.variants = variants;
}

void FieldTree::object(Field const& field, Describe const& describe) {
  add(field, FieldInfo::Kind::Object, true).fields = fieldsOf(describe);
}

bool FieldTree::optionalObject(Field const& field, bool, Describe const& describe) {
  add(field, FieldInfo::Kind::Object, false).fields = fieldsOf(describe);
  return true;
}

void FieldTree::objects(Field const& field, int, int max, std::function<void(Fields&, int)> const& describe) {
  FieldInfo& info = add(field, FieldInfo::Kind::List, false);
  info.range = {0, double(max)};
  QString const key = QString::fromUtf8(field.key);
  if (outerLists_.contains(key)) return;
  FieldTree entry(outerLists_ + QStringList(key));
  describe(entry, 0);
  info.fields = entry.fields_;
}

}  // namespace SysUtility
