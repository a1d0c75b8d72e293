#pragma once

#include "CommandCatalogue.h"

#include <SysUI/ICommand.h>
#include <SysUI/ITool.h>

#include <QObject>

#include <functional>

class DocumentViews;
class HostCommands;
class PluginLibrary;

/// A command that this desktop has, and how it is shown.
struct HostedCommand {
  CommandEntry entry;
  SysUtility::_ptr_t<SysUI::ICommand> command;
  SysUtility::_ptr_t<SysUI::ITool> tool;  ///< its face as a tool; empty for a plain command
};

/// All commands of a desktop, the host's and the plug-in's, each created once. This is the place that decides what may
/// be clicked, and which tool is current.
class CommandSet final : public QObject {
  Q_OBJECT

public:
  /// `hook` is what the commands' `OnCreate` is given; `views` show the current tool. Both outlive the set.
  CommandSet(HostCommands const& host, PluginLibrary const& plugin, void* hook, DocumentViews& views);
  ~CommandSet() override;

  /// The host's first, each in the order of its catalogue. A command that nobody builds is not among them.
  QVector<HostedCommand> const& commands() const { return commands_; }

  /// Without regard to case; null where there is none.
  HostedCommand const* find(QString const& identifier) const;

  /// Runs a command, or makes a tool the current one. Answers false, with nothing done, for one that is disabled: it is
  /// asked on the very object that is then clicked, since some keep what they found.
  bool click(HostedCommand const& command);

  /// Null where no tool is current.
  HostedCommand const* currentTool() const;

  /// The current tool has done its work: that of selecting takes over, unless this one was chosen twice.
  void toolDone();

  /// `mayClick` is asked before each click; where it answers false, nothing is done.
  void setGuard(std::function<bool(CommandEntry const&)> mayClick) { mayClick_ = std::move(mayClick); }

signals:
  /// After each click.
  void clicked();

  /// Why something was not done, as a sentence, by a command or tool that tells of it to nobody.
  void failed(QString const& sentence);

private:
  void makeCurrent(HostedCommand const& command);
  void finishTool();
  void add(CommandEntry const& entry, SysUtility::_ptr_t<SysUI::ICommand> const& command, void* hook);

  DocumentViews& views_;
  std::function<bool(CommandEntry const&)> mayClick_;
  QVector<HostedCommand> commands_;
  int currentTool_ = -1;
  bool keepsTool_ = false;
};
