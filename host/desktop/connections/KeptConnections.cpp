#include "KeptConnections.h"

#include "host/SysUtility/Fields.h"
#include "host/SysUtility/JsonFields.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QSettings>

#include <algorithm>

using SysCarto::Connection;
using SysCarto::Connections;

namespace {

constexpr int maxConnections = 1000;
QString const key = QStringLiteral("connections");

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(KeptConnections)
};

}  // namespace

// What cannot be read is not known: a setting that was written by hand may be anything.
KeptConnections KeptConnections::kept() {
  KeptConnections read;
  QByteArray const text = QSettings().value(key).toByteArray();
  if (!text.isEmpty() && !SysUtility::readJson(QJsonDocument::fromJson(text).object(), read).isEmpty())
    read.connections.clear();
  return read;
}

void KeptConnections::list(SysUtility::Fields& fields) {
  fields.list<std::vector<Connection>>(
      {"connections", QT_TRANSLATE_NOOP("Fields", "Connections"),
       QT_TRANSLATE_NOOP("Fields", "Databases by the names that documents have for them."), "connection"},
      connections, maxConnections, [](SysUtility::Fields& own, Connection& one, int) { one.list(own); });
}

QString KeptConnections::keep() {
  SysUtility::JsonWriter writer;
  list(writer);
  QSettings settings;
  settings.setValue(key, QJsonDocument(writer.json()).toJson(QJsonDocument::Compact));
  settings.sync();
  if (settings.status() != QSettings::NoError)
    return Texts::tr("The settings could not be written; make %1 writable.").arg(settings.fileName());
  Connections::know(connections);
  return QString();
}

Connection* KeptConnections::find(QString const& name) {
  auto const found =
      std::find_if(connections.begin(), connections.end(), [&](Connection const& one) { return one.name == name; });
  return found == connections.end() ? nullptr : &*found;
}

void KeptConnections::begin() { Connections::know(kept().connections); }

void KeptConnections::confine() {
  QStringList open;
  for (Connection const& one : kept().connections)
    if (one.forDocuments) open << one.name;
  Connections::confine(open);
}

QString KeptConnections::openToDocuments(QString const& name) {
  KeptConnections all = kept();
  if (Connection* const one = all.find(name)) one->forDocuments = true;
  QString const problem = all.keep();
  if (problem.isEmpty()) confine();
  return problem;
}
