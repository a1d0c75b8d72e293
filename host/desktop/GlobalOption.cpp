#include "GlobalOption.h"

std::optional<QString> takeOption(QStringList& arguments, char const* name) {
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
  }
  return value;
}
