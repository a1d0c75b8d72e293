#include "Workbench.h"

#include "series/SeriesCommands.h"

#include "host/SysFramework/Translations.h"

using SysUtility::_ptr_t;
using SysUtility::make;

ViewDesktop::ViewDesktop(SysCarto::MapDocument& document, DocumentViews& views)
    : Desktop(document, views), views_(views) {}
ViewDesktop::~ViewDesktop() = default;

_ptr_t<SysCarto::ActiveView> ViewDesktop::GetActiveView() { return views_.activeView(); }
SysAdapterUI::TOCControl* ViewDesktop::GetTOCControl() { return tableOfContents_; }

Workbench::Workbench(std::function<void(HostCommands&)> const& addCommands)
    : views_(make<DocumentViews>(session_.document(), nullptr)),
      desktop_(make<ViewDesktop>(session_.document(), *views_)) {
  plugin_.load();
  SysFramework::installLaterTranslations();
  HostCommands host(session_, *views_);
  series_ = std::make_unique<SeriesView>(session_, *views_);
  addPageCommands(host, *series_);
  if (addCommands) addCommands(host);
  commands_ = std::make_unique<CommandSet>(host, plugin_, desktop_->hook(), *views_);
  QObject::connect(&session_, &DocumentSession::replaced, views_.get(), &DocumentViews::follow);
  QObject::connect(&session_, &DocumentSession::historyChanged, views_.get(), &DocumentViews::redraw);
}

// A widget that a window has taken in is the workbench's all the same.
Workbench::~Workbench() { views_->setParent(nullptr); }
