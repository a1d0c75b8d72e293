#include "KeptConnections.h"

#include "host/SysUtility/JsonFields.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>

#include <algorithm>

using SysCarto::Connection;
using SysCarto::Connections;

namespace {

QString const key = QStringLiteral("connections");

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(KeptConnections)
};

QString nameOf(QJsonValue const& entry) { return entry.toObject().value(QLatin1String("name")).toString(); }

}  // namespace

// A setting that was written by hand may be anything.
KeptConnections KeptConnections::kept() {
  KeptConnections read;
  QSettings const settings;
  QByteArray const text = settings.value(key).toByteArray();
  if (text.trimmed().isEmpty()) return read;
  QJsonValue const all = QJsonDocument::fromJson(text).object().value(key);
  if (!all.isArray()) {
    read.isReadable = false;
    read.problems << Texts::tr(
                         "The connections in %1 could not be read; correct its entry “connections”, or remove it.")
                         .arg(settings.fileName());
  }
  for (QJsonValue const& entry : all.toArray()) {
    Connection one;
    QString const problem =
        entry.isObject() ? SysUtility::readJson(entry.toObject(), one) : Texts::tr("it is no object");
    if (problem.isEmpty()) {
      read.connections.push_back(one);
      continue;
    }
    read.notUnderstood << entry;
    read.problems << Texts::tr(
                         "The connection “%1” in %2 is left out: %3. Correct it there, or remove it with plotvane "
                         "connections remove %1.")
                         .arg(nameOf(entry), settings.fileName(), problem);
  }
  return read;
}

QString KeptConnections::keep() {
  if (!isReadable) return problems.first();
  QJsonArray all;
  for (Connection& one : connections) {
    SysUtility::JsonWriter writer;
    one.list(writer);
    all << writer.json();
  }
  for (QJsonValue const& one : qAsConst(notUnderstood)) all << one;
  QSettings settings;
  settings.setValue(key, QJsonDocument(QJsonObject{{key, all}}).toJson(QJsonDocument::Compact));
  settings.sync();
  if (settings.status() != QSettings::NoError)
    return Texts::tr("The settings could not be written; make %1 writable.").arg(settings.fileName());
  Connections::know(connections);
  return QString();
}

bool KeptConnections::has(QString const& name) {
  return find(name) || std::any_of(notUnderstood.constBegin(), notUnderstood.constEnd(),
                                   [&](QJsonValue const& one) { return nameOf(one) == name; });
}

void KeptConnections::remove(QString const& name) {
  connections.erase(
      std::remove_if(connections.begin(), connections.end(), [&](Connection const& one) { return one.name == name; }),
      connections.end());
  for (int i = notUnderstood.size(); i-- > 0;)
    if (nameOf(notUnderstood.at(i)) == name) notUnderstood.removeAt(i);
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
