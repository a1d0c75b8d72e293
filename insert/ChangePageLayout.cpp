#include "ChangePageLayout.h"

#include "LayoutCommand.h"

#include <SysAdapterUI/TOCControl.h>
#include <SysCarto/Map.h>
#include <SysCarto/MapDocument.h>
#include <SysFramework/HostAccess.h>

#include <QApplication>
#include <QDesktopWidget>
#include <QFileDialog>
#include <QMessageBox>

using SysCarto::IKdxContents;
using SysCarto::Map;
using SysCarto::MapDocument;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace Plugin {

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(OpenProjectCommand)
};

QString chosenFile() {
  return QFileDialog::getOpenFileName(QApplication::desktop(), Texts::tr("Open"), QString(),
                                      Texts::tr("kdx File(*.kdx)"));
}

void install(_ptr_t<PageLayout> const& layout, IKdxContents& contents, IDesktop& desktop, PageLayout const& old) {
  contents.SetPageLayout(layout);
  if (auto const site = desktop.GetContentsSite()) site->SetContents(&contents);
  if (auto* const tableOfContents = desktop.GetTOCControl()) tableOfContents->SetBuddy(&contents);
  auto const shown = contents.GetPageLayout();
  if (!shown) return;
  shown->GetDisplayTransformation()->SetDeviceFrame(old.GetDisplayTransformation()->GetDeviceFrame());
  shown->Refresh(0, false);
}

}  // namespace

bool ChangePageLayout::IsEnable() {
  enabled_ = static_cast<bool>(SysFramework::activePageLayout(*hook()));
  return enabled_;
}

void ChangePageLayout::OnClick() {
  auto const old = SysFramework::activePageLayout(*hook());
  if (!old || !desktop_) return;
  desktop_->GetMapDocument();
  IKdxContents* const contents = desktop_->GetActiveContents();
  auto const current = contents ? contents->GetPageLayout() : nullptr;
  if (!current) return;
  QList<_ptr_t<Map>> maps;
  current->GetMaps(maps);
  current->Deactivate();

  MapDocument templateDocument;
  QString const file = chosenFile();
  if (file.isEmpty()) return;
  if (!templateDocument.Open(file)) {
    QMessageBox::critical(dialogParent(*hook()), Texts::tr("Error"), Texts::tr("Open File Failed!"), QMessageBox::Ok,
                          QMessageBox::Ok);
    return;
  }
  auto const layout = templateDocument.GetPageLayout();
  layout->ReplaceMaps(maps);
  install(layout, *contents, *desktop_, *old);
}

}  // namespace Plugin
