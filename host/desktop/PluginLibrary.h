#pragma once

#include <SysUI/CMDPluginModule.h>

#include <QCoreApplication>
#include <QString>

/// The plug-in, loaded as any host loads it: the library, its one exported function, and commands by identifier. It is
/// never unloaded.
class PluginLibrary {
  Q_DECLARE_TR_FUNCTIONS(PluginLibrary)

public:
  enum class State { Missing, Found, Loaded, Failed };

  /// Looks for the library: PLOTVANE_PLUGIN where that is set, else beside the executable.
  PluginLibrary();
  ~PluginLibrary();

  State state() const { return state_; }
  QString stateName() const;
  QString path() const { return path_; }

  /// Why it is missing or failed: a sentence for people.
  QString reason() const { return reason_; }

  /// Loads what was found.
  void load();

  /// A new command; empty where the plug-in is not loaded, or builds none of that name.
  SysUtility::_ptr_t<SysUI::ICommand> createCommand(QString const& identifier) const;

private:
  State state_ = State::Missing;
  QString path_;
  QString reason_;
  SysUtility::_ptr_t<SysUI::CMDPluginModule> module_;
};
