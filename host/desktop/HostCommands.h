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
  /// What a command does; an empty `isEnabled` means always, an empty `isChecked` never. `problem` says after a click
  /// why nothing was done, if anything.
  struct Action {
    std::function<void()> click;
    std::function<bool()> isEnabled;
    std::function<bool()> isChecked;
    std::function<QString()> problem = {};
  };

  /// With the commands that work on a document and its views. Both are borrowed and outlive the commands.
  HostCommands(DocumentSession& session, DocumentViews& views);

  /// Adds a command that only some desktops have, such as those of a window.
  void add(QString const& identifier, Action const& action) { actions_[identifier] = action; }

  /// Empty where there is no command of that name. Tools borrow the views.
  SysUtility::_ptr_t<SysUI::ICommand> createCommand(QString const& identifier) const;

  /// Why the latest click of one of these commands did nothing, as a sentence; empty for others.
  static QString problemOf(SysUI::ICommand const& command);

private:
  DocumentSession& session_;
  DocumentViews& views_;
  QHash<QString, Action> actions_;
};
