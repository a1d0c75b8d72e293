#include "CommandSet.h"

#include "DocumentViews.h"
#include "HostCommands.h"
#include "OutputWatch.h"
#include "PluginLibrary.h"

#include "host/SysCarto/layout/PageLayoutHost.h"

using SysUI::ICommand;
using SysUI::ITool;
using SysUtility::_ptr_t;

CommandSet::CommandSet(HostCommands const& host, PluginLibrary const& plugin, void* hook, DocumentViews& views)
    : views_(views) {
  for (CommandEntry const& entry : hostCatalogue()) add(entry, host.createCommand(entry.identifier), hook);
  for (CommandEntry const& entry : commandCatalogue()) add(entry, plugin.createCommand(entry.identifier), hook);
  finishTool();
  QObject::connect(&views.layoutView(), &LayoutView::toolDone, this, &CommandSet::toolDone);
  QObject::connect(&views.layoutView(), &LayoutView::selectingWanted, this, [this] {
    finishTool();
    emit clicked();
  });
  QObject::connect(&views.layoutView(), &LayoutView::told, this, &CommandSet::failed);
}

CommandSet::~CommandSet() { views_.layoutView().setTool(nullptr); }

void CommandSet::add(CommandEntry const& entry, _ptr_t<ICommand> const& command, void* hook) {
  if (!command) return;
  command->OnCreate(hook);
  commands_.append({translated(entry), command, SysUtility::ptr_cast<ITool>(command)});
}

HostedCommand const* CommandSet::find(QString const& identifier) const {
  for (HostedCommand const& command : commands_)
    if (command.entry.identifier.compare(identifier, Qt::CaseInsensitive) == 0) return &command;
  return nullptr;
}

HostedCommand const* CommandSet::currentTool() const { return currentTool_ < 0 ? nullptr : &commands_[currentTool_]; }

bool CommandSet::click(HostedCommand const& command) {
  views_.layoutView().finishEditing();
  if (!command.command->IsEnable() || (mayClick_ && !mayClick_(command.entry))) return false;
  // The plug-in knows the page alone, and what it puts there is worked on there.
  bool const isOfPage = command.entry.identifier.startsWith(QLatin1String("Plotvane_")) &&
                        !command.entry.menu.startsWith(QLatin1String("View"));
  auto const layout = views_.GetPageLayout();
  if (isOfPage && layout) SysCarto::PageLayoutHost::openOnly(*layout, {});
  QString problem;
  if (command.tool) {
    makeCurrent(command);
  } else {
    OutputWatch const watch(views_.document());
    command.command->OnClick();
    problem = watch.problem();
    if (problem.isEmpty()) problem = HostCommands::problemOf(*command.command);
  }
  views_.layoutView().catchUp();
  emit clicked();
  if (!problem.isEmpty()) emit failed(problem);
  return true;
}

void CommandSet::toolDone() {
  if (keepsTool_) return;
  finishTool();
  emit clicked();
}

void CommandSet::finishTool() {
  if (auto const* const select = find(QStringLiteral("Host_Select"))) makeCurrent(*select);
}

void CommandSet::makeCurrent(HostedCommand const& command) {
  auto const* const former = currentTool();
  keepsTool_ = former == &command;
  if (former == &command || (former && !former->tool->Deactivate())) return;
  currentTool_ = static_cast<int>(&command - commands_.constData());
  command.tool->Activate();
  views_.layoutView().setTool(command.tool);
}
