#pragma once

#include "CommandSet.h"
#include "Desktop.h"
#include "DocumentSession.h"
#include "DocumentViews.h"
#include "HostCommands.h"
#include "PluginLibrary.h"
#include "series/SeriesView.h"

#include <functional>
#include <memory>

/// The host of commands where a document has views.
class ViewDesktop final : public Desktop {
public:
  /// Both are borrowed and outlive the desktop.
  ViewDesktop(SysCarto::MapDocument& document, DocumentViews& views);
  ~ViewDesktop() override;

  /// Borrowed, or null.
  void setTableOfContents(SysAdapterUI::TOCControl* control) { tableOfContents_ = control; }

  SysUtility::_ptr_t<SysCarto::ActiveView> GetActiveView() override;
  SysAdapterUI::TOCControl* GetTOCControl() override;

private:
  DocumentViews& views_;
  SysAdapterUI::TOCControl* tableOfContents_ = nullptr;
};

/// What it takes to work on a document, with a window about it or without: the document, its views, the loaded plug-in,
/// and the commands of both.
class Workbench final {
public:
  /// `addCommands` may add commands of the host that need more than a document and its views.
  explicit Workbench(std::function<void(HostCommands&)> const& addCommands = {});
  ~Workbench();
  Workbench(Workbench const&) = delete;
  Workbench& operator=(Workbench const&) = delete;

  DocumentSession& session() { return session_; }
  DocumentViews& views() { return *views_; }
  SeriesView& series() { return *series_; }
  ViewDesktop& desktop() { return *desktop_; }
  PluginLibrary const& plugin() const { return plugin_; }
  CommandSet& commands() { return *commands_; }
  CommandSet const& commands() const { return *commands_; }

private:
  DocumentSession session_;
  SysUtility::_ptr_t<DocumentViews> views_;  // without a Qt parent for long: the workbench owns it
  SysUtility::_ptr_t<ViewDesktop> desktop_;
  std::unique_ptr<SeriesView> series_;
  PluginLibrary plugin_;
  std::unique_ptr<CommandSet> commands_;
};
