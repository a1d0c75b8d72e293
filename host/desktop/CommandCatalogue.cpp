#include "CommandCatalogue.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

QVector<CommandEntry> commandCatalogue() {
  QFile file(QStringLiteral(":/desktop/commands.json"));
  QVector<CommandEntry> entries;
  if (!file.open(QIODevice::ReadOnly)) return entries;
  for (QJsonValue const& value : QJsonDocument::fromJson(file.readAll()).array()) {
    auto const text = [row = value.toObject()](char const* key) { return row[QLatin1String(key)].toString(); };
    entries.append({text("identifier"), text("caption"), text("toolTip"), text("shortcut"), text("menu"),
                    text("toolbar"), text("needs")});
  }
  return entries;
}
