#include "IndexCache.h"

#include "GlobalOption.h"
#include "HostCommands.h"

#include "host/SysCarto/layers/indexed/SourceIndexes.h"

#include <QCoreApplication>
#include <QSettings>
#include <QStandardPaths>

namespace {

QString const key = QStringLiteral("data/indexes");

bool isSwitchedOn() { return QSettings().value(key, true).toBool(); }

bool isRefused() {
  QStringList line = QCoreApplication::arguments();
  return IndexCache::take(line);
}

}  // namespace

bool IndexCache::take(QStringList& arguments) { return takeFlag(arguments, option); }

QStringList IndexCache::arguments() {
  return isRefused() ? QStringList(QStringLiteral("--") + QLatin1String(option)) : QStringList();
}

void IndexCache::begin() {
  QString const cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  bool const isUsed = !cache.isEmpty() && isSwitchedOn() && !isRefused();
  SysCarto::SourceIndexes::use(isUsed ? cache + QStringLiteral("/plotvane/indexes") : QString());
}

void IndexCache::addTo(HostCommands& host) {
  auto const change = [] {
    QSettings().setValue(key, !isSwitchedOn());
    begin();
  };
  host.add(QStringLiteral("Host_IndexLargeFiles"), {change, [] { return !isRefused(); }, isSwitchedOn});
}
