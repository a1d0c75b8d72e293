#include "AddNorthArrowCommand.h"

#include "SurroundInsertion.h"

#include <SysAdapterUI/StyleGalleryClass.h>
#include <SysAdapterUI/StyleSelectorDlg.h>
#include <SysCarto/Map.h>
#include <SysFramework/HostAccess.h>
#include <SysUI/EnvironmentSetting.h>

#include <QCoreApplication>
#include <QFile>
#include <QStringList>

using SysDisplay::MarkerSymbol;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace Plugin {

namespace {

// The libraries of the setting that exist. One that names none is repaired at once, whatever becomes of the dialog.
QStringList libraries() {
  QString const group = QStringLiteral("PATH"), key = QStringLiteral("StyleFilePaths");
  auto* const settings = SysUI::EnvironmentSetting::Instance();
  QString const value = settings->GetPropertyValue(group, key);
  QStringList paths;
  if (!value.isEmpty()) paths = value.split(QLatin1Char(','), Qt::KeepEmptyParts, Qt::CaseSensitive);
  for (int i = paths.size() - 1; i >= 0; --i)
    if (!QFile::exists(paths[i])) paths.removeAt(i);
  if (!paths.isEmpty()) return paths;
  QString const ownLibrary = settings->GetStyleDir() + QStringLiteral("/ORV.style");
  settings->SetPropertyValue(group, key, ownLibrary);
  return {ownLibrary};
}

// Empty where the libraries hold no north arrow.
_ptr_t<MarkerSymbol> firstArrow(QStringList const& paths) {
  SysAdapterUI::StyleGalleryClass gallery;
  QVector<_ptr_t<SysDisplay::StyleGalleryItem>> items;
  for (QString const& path : paths) gallery.GetItems(path, QStringLiteral("NorthArrows"), QString(), items);
  return items.isEmpty() || !items.first() ? nullptr : ptr_cast<MarkerSymbol>(items.first()->GetItem());
}

}  // namespace

void AddNorthArrowCommand::OnClick() {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  auto const preselected = firstArrow(libraries());
  if (!layout->GetPage()) return;
  SysAdapterUI::StyleSelectorDlg dialog(dialogParent(*hook()));
  dialog.setWindowTitle(QCoreApplication::translate("AddNorthArrowCommand", "North Arrow Properties"));
  dialog.SetStyleItem(static_cast<SysAdapterUI::orvSymbologyStyleClass>(0), preselected);
  if (dialog.exec() != QDialog::Accepted) return;

  auto const arrow = SysUtility::make<SysCarto::MarkerNorthArrow>();
  if (auto const symbol = ptr_cast<MarkerSymbol>(dialog.GetStyleItem())) arrow->SetMarkerSymbol(symbol);
  auto const frame = surroundFrame(arrow, layout->GetFocusMap(), layout->GetDefaultNorthArrowEnvelope());
  {
    SysFramework::EditorOperation const operation(QCoreApplication::translate("AddNorthArrowCommand", ""));
    layout->GetGraphicsContainer()->AddElement(frame);
  }
  selectAlone(*layout, frame);
}

}  // namespace Plugin
