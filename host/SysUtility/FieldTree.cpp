#include "FieldTree.h"

#include <utility>

namespace SysUtility {

FieldInfo::Kind kindOf(ValueRef const& value) {
  using Kind = FieldInfo::Kind;
  constexpr Kind kinds[] = {Kind::Number, Kind::Integer, Kind::Flag,        Kind::Text,
                            Kind::Texts,  Kind::Numbers, Kind::Coordinates, Kind::NumberList};
  static_assert(std::size(kinds) == std::variant_size_v<ValueRef>);
  return kinds[value.index()];
}

FieldTree::FieldTree(QStringList outerTypes) : outerTypes_(std::move(outerTypes)) {}
FieldTree::~FieldTree() = default;

FieldInfo& FieldTree::add(Field const& field, FieldInfo::Kind kind, bool isRequired) {
  FieldInfo info;
  info.field = field;
  info.kind = kind;
  info.rules.isRequired = isRequired;
  fields_ << info;
  return fields_.last();
}

// The fields of a nested object, or of each object of a list.
QVector<FieldInfo> FieldTree::fieldsOf(Field const& field, Describe const& describe) const {
  QString const type = QString::fromUtf8(field.type ? field.type : field.key);
  if (outerTypes_.contains(type)) return {};
  FieldTree inner(outerTypes_ + QStringList(type));
  describe(inner);
  return inner.fields_;
}

void FieldTree::fail(char const* key, QString const&) { failedKey_ = QString::fromUtf8(key); }

void FieldTree::value(Field const& field, ValueRef value, ValueRules const& rules) {
  add(field, kindOf(value), rules.isRequired).rules = rules;
}

void FieldTree::choose(Field const& field, int&, Choices const& choices, std::optional<int> byDefault) {
  FieldInfo& info = add(field, FieldInfo::Kind::Choice, !byDefault);
  for (Choice const& choice : choices) {
    info.choices << choice;
    if (choice.value == byDefault) info.rules.byDefault = QString::fromUtf8(choice.name);
  }
}

void FieldTree::variant(Field const& field, int&, Choices const& kinds, std::function<void(int)> const& describe) {
  QVector<FieldInfo> const before = std::exchange(fields_, {});
  QVector<Choice> choices;
  QVector<QVector<FieldInfo>> variants;
  for (Choice const& kind : kinds) {
    failedKey_.clear();
    describe(kind.value);
    auto const described = std::exchange(fields_, {});
    if (failedKey_ == QLatin1String(field.key)) continue;
    choices << kind;
    variants << described;
  }
  fields_ = before;
  FieldInfo& info = add(field, FieldInfo::Kind::Variant, true);
  info.choices = choices;
  info.variants = variants;
}

bool FieldTree::nest(Field const& field, std::optional<bool> present, Describe const& describe) {
  add(field, FieldInfo::Kind::Object, !present).fields = fieldsOf(field, describe);
  return true;
}

void FieldTree::objects(Field const& field, int, Counts const& counts,
                        std::function<void(Fields&, int)> const& describe) {
  FieldInfo& info = add(field, FieldInfo::Kind::List, counts.min > 0);
  info.counts = counts;
  info.fields = fieldsOf(field, [&](Fields& entry) { describe(entry, 0); });
}

}  // namespace SysUtility
