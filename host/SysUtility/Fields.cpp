#include "Fields.h"

namespace SysUtility {

Fields::~Fields() = default;

void Fields::remark(char const*, QString const&) {}

void Fields::variant(Field const& field, int& kind, Choices const& kinds, std::function<void(int)> const& describe) {
  choose(field, kind, kinds, std::nullopt);
  if (ok()) describe(kind);
}

}  // namespace SysUtility
