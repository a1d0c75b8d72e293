#include "CommandCatalogue.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QVector<CommandEntry> readCatalogue(QString const& path) {
  QFile file(path);
  QVector<CommandEntry> entries;
  if (!file.open(QIODevice::ReadOnly)) return entries;
  for (QJsonValue const& value : QJsonDocument::fromJson(file.readAll()).array()) {
    auto const text = [row = value.toObject()](char const* key) { return row[QLatin1String(key)].toString(); };
    entries.append({text("identifier"), text("caption"), text("toolTip"), text("icon"), text("shortcut"), text("menu"),
                    value.toObject()[QStringLiteral("section")].toInt(1), text("toolbar"), text("needs")});
  }
  return entries;
}

// scripts/translations lists the texts.
QString translatedText(QString const& text) {
  return QCoreApplication::translate("Commands", text.toUtf8().constData());
}

}  // namespace

QVector<CommandEntry> commandCatalogue() { return readCatalogue(QStringLiteral(":/desktop/commands.json")); }
QVector<CommandEntry> hostCatalogue() { return readCatalogue(QStringLiteral(":/desktop/host-commands.json")); }

CommandEntry translated(CommandEntry entry) {
  for (QString* const text : {&entry.caption, &entry.toolTip, &entry.needs}) *text = translatedText(*text);
  return entry;
}

QString translatedPlace(QString const& name) { return translatedText(name); }
