#include <SysUI/EnvironmentSetting.h>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QStringList>

#include <memory>

namespace SysUI {

namespace {

// Opened for each call: Qt keeps the contents between them, and the application may get its name after the first one.
std::unique_ptr<QSettings> openSettings() {
  QString const file = qEnvironmentVariable("PLOTVANE_SETTINGS");
  auto settings =
      file.isEmpty() ? std::make_unique<QSettings>() : std::make_unique<QSettings>(file, QSettings::IniFormat);
  settings->setIniCodec("UTF-8");
  return settings;
}

QString pathOf(QString const& group, QString const& key) { return group + QLatin1Char('/') + key; }

}  // namespace

EnvironmentSetting* EnvironmentSetting::Instance() {
  static EnvironmentSetting instance;
  return &instance;
}

// An ini file written by hand may hold commas outside quotation marks, which Qt takes for a list.
QString EnvironmentSetting::GetPropertyValue(QString const& group, QString const& key) const {
  QVariant const value = openSettings()->value(pathOf(group, key));
  if (value.type() == QVariant::StringList) return value.toStringList().join(QLatin1Char(','));
  return value.toString();
}

void EnvironmentSetting::SetPropertyValue(QString const& group, QString const& key, QString const& value) {
  auto const settings = openSettings();
  settings->setValue(pathOf(group, key), value);
  settings->sync();
  if (settings->status() != QSettings::NoError)
    qWarning("The settings file “%s” can't be written; “%s” keeps its old value. Make the file writable.",
             qUtf8Printable(settings->fileName()), qUtf8Printable(pathOf(group, key)));
}

QString EnvironmentSetting::GetStyleDir() const {
  QString const chosen = qEnvironmentVariable("PLOTVANE_STYLE_DIR");
  if (!chosen.isEmpty()) return QDir::cleanPath(chosen);
  return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/plotvane/styles"));
}

}  // namespace SysUI
