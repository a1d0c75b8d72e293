#include "PluginLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

using SysUI::CMDPluginModule;

namespace {

constexpr char fileName[] = "plotvane_plugin.so";
constexpr char entryName[] = "GetPluginModule";
using Entry = CMDPluginModule* (*)();

// In the build tree and in the installed one.
QStringList candidates() {
  QString const chosen = qEnvironmentVariable("PLOTVANE_PLUGIN");
  if (!chosen.isEmpty()) return {QFileInfo(chosen).absoluteFilePath()};
  QStringList paths;
  for (char const* folder : {"../lib", PLOTVANE_INSTALLED_PLUGIN_DIR})
    paths.append(QDir::cleanPath(
        QStringLiteral("%1/%2/%3")
            .arg(QCoreApplication::applicationDirPath(), QLatin1String(folder), QLatin1String(fileName))));
  return paths;
}

}  // namespace

PluginLibrary::PluginLibrary() {
  for (QString const& path : candidates())
    if (QFileInfo(path).isFile()) {
      path_ = path;
      state_ = State::Found;
      return;
    }
  reason_ = tr("The plug-in is missing: there is no %1. Build it, or name it in PLOTVANE_PLUGIN.")
                .arg(candidates().join(tr(" and no ")));
}

PluginLibrary::~PluginLibrary() = default;

QString PluginLibrary::stateName() const {
  switch (state_) {
    case State::Missing: return QStringLiteral("missing");
    case State::Found: return QStringLiteral("found");
    case State::Loaded: return QStringLiteral("loaded");
    case State::Failed: return QStringLiteral("failed");
  }
  return QString();
}

void PluginLibrary::load() {
  if (state_ != State::Found) return;
  state_ = State::Failed;
  QLibrary library(path_);
  library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
  if (!library.load()) {
    reason_ = tr("The plug-in can't be loaded: %1").arg(library.errorString());
    return;
  }
  auto const entry = reinterpret_cast<Entry>(library.resolve(entryName));
  if (!entry) {
    reason_ = tr("%1 is no plug-in: it exports no function %2.").arg(path_, QLatin1String(entryName));
    return;
  }
  module_ = SysUtility::_ptr_t<CMDPluginModule>(entry());
  if (!module_) {
    reason_ = tr("%1: %2 answered no module.").arg(path_, QLatin1String(entryName));
    return;
  }
  state_ = State::Loaded;
}

SysUtility::_ptr_t<SysUI::ICommand> PluginLibrary::createCommand(QString const& identifier) const {
  return module_ ? module_->CreateCommand(identifier, QString()) : nullptr;
}
