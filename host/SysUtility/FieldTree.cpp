#include "FieldTree.h"

#include <utility>

namespace SysUtility {

FieldTree::FieldTree(QStringList outerLists) : outerLists_(std::move(outerLists)) {}
FieldTree::~FieldTree() = default;

FieldInfo& FieldTree::add(Field const& field, FieldInfo::Kind kind, bool isRequired) {
  FieldInfo info;
  info.field = field;
  info.kind = kind;
  info.rules.isRequired = isRequired;
  fields_ << info;
  return fields_.last();
}

void FieldTree::value(Field const& field, ValueRef value, ValueRules const& rules) {
  using Kind = FieldInfo::Kind;
  constexpr Kind kinds[] = {Kind::Number, Kind::Integer, Kind::Flag,       Kind::Text,
                            Kind::Texts,  Kind::Numbers, Kind::Coordinates};
  static_assert(std::size(kinds) == std::variant_size_v<ValueRef>);
  add(field, kinds[value.index()], rules.isRequired).rules = rules;
}

void FieldTree::choose(Field const& field, int&, Choices const& choices, std::optional<int> byDefault) {
  FieldInfo& info = add(field, FieldInfo::Kind::Choice, !byDefault);
  for (Choice const& choice : choices) {
    info.choices << choice;
    if (choice.value == byDefault) info.rules.byDefault = QString::fromUtf8(choice.name);
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

bool FieldTree::nest(Field const& field, std::optional<bool> present, Describe const& describe) {
  FieldTree inner(outerLists_);
  describe(inner);
  add(field, FieldInfo::Kind::Object, !present).fields = inner.fields_;
  return true;
}

void FieldTree::objects(Field const& field, int, int max, std::function<void(Fields&, int)> const& describe) {
  FieldInfo& info = add(field, FieldInfo::Kind::List, false);
  info.maxCount = max;
  QString const key = QString::fromUtf8(field.key);
  if (outerLists_.contains(key)) return;
  FieldTree entry(outerLists_ + QStringList(key));
  describe(entry, 0);
  info.fields = entry.fields_;
}

}  // namespace SysUtility
