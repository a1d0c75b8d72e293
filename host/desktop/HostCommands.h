#pragma once

#include "DocumentViews.h"

#include <SysUI/ICommand.h>

#include <QHash>
#include <QObject>

#include <functional>

class DocumentSession;

/// The host's own commands, made by identifier as a plug-in makes its.
class HostCommands {
public:
  /// What a command does; an empty `isEnabled` means always, an empty `isChecked` never.
  struct Action {
    std::function<void()> click;
    std::function<bool()> isEnabled;
    std::function<bool()> isChecked;
  };

  /// With the commands that work on a document and its views. Both are borrowed and outlive the commands.
  HostCommands(DocumentSession& session, DocumentViews& views);

  /// Adds a command that only some desktops have, such as those of a window.
  void add(QString const& identifier, Action const& action) { actions_[identifier] = action; }

  /// Empty where there is no command of that name.
  SysUtility::_ptr_t<SysUI::ICommand> createCommand(QString const& identifier) const;

private:
  QHash<QString, Action> actions_;
};
