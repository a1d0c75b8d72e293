#include "GlobalOption.h"

#include <algorithm>

namespace {

int optionsIn(QStringList const& arguments) {
  int const end = arguments.indexOf(QStringLiteral("--"));
  return end < 0 ? arguments.size() : end;
}

}  // namespace

std::optional<QString> takeOption(QStringList& arguments, char const* name, OptionValue which) {
  QString const option = QStringLiteral("--") + QLatin1String(name);
  std::optional<QString> value;
  for (int i = 0; i < arguments.size() && arguments.at(i) != QLatin1String("--");) {
    bool const isAlone = arguments.at(i) == option;
    if (!isAlone && !arguments.at(i).startsWith(option + QLatin1Char('='))) {
      ++i;
      continue;
    }
    QString const argument = arguments.takeAt(i);
    if (!isAlone)
      value = argument.mid(option.size() + 1);
    else
      value = i < arguments.size() ? arguments.takeAt(i) : QString();
    if (which == OptionValue::First) break;
  }
  return value;
}

bool takeFlag(QStringList& arguments, char const* name) {
  auto const end = arguments.begin() + optionsIn(arguments);
  auto const found = std::remove(arguments.begin(), end, QStringLiteral("--") + QLatin1String(name));
  bool const isThere = found != end;
  arguments.erase(found, end);
  return isThere;
}
