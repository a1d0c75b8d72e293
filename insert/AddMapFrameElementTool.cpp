#include "AddMapFrameElementTool.h"

#include <SysAdapterUI/PageLayoutControl.h>
#include <SysCarto/Map.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>
#include <QStringList>

using SysCarto::Map;
using SysCarto::MapFrameElement;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace Plugin {

namespace {

constexpr int cascadeStep = 2, cascadeEnd = 30;
constexpr int highestNumber = 999;

// One for all instances of the command, as long as the module is loaded.
int cascadeOffset = 0;

int nextOffset() {
  cascadeOffset += cascadeStep;
  if (cascadeOffset > cascadeEnd) cascadeOffset = 0;
  return cascadeOffset;
}

// The first of Map1, Map2, … that no map of the layout has; the last one where all are taken.
QString freeName(PageLayout const& layout) {
  QList<_ptr_t<Map>> maps;
  layout.GetMaps(maps);
  QStringList taken;
  for (auto const& map : qAsConst(maps)) taken << map->GetName();
  QString name;
  for (int number = 1; number <= highestNumber; ++number) {
    name = QStringLiteral("Map%1").arg(number);
    if (!taken.contains(name)) break;
  }
  return name;
}

void tellCompanion(SysCarto::IKdxContents* contents) {
  auto* const control = dynamic_cast<SysAdapterUI::PageLayoutControl*>(contents);
  auto* const companion = control ? control->GetCompanion() : nullptr;
  if (companion) companion->SetBuddy(control);
}

}  // namespace

void AddMapFrameElementTool::OnClick() {
  int const offset = nextOffset();
  auto const layout = hook()->GetPageLayout();
  if (!layout || !layout->GetPage()) return;
  auto const rectangle = layout->GetDefaultDataFrameEnvelope();
  rectangle->Offset(offset, offset);
  auto const frame = SysUtility::make<MapFrameElement>();
  frame->SetGeometry(rectangle);
  {
    SysFramework::EditorOperation const operation(
        QCoreApplication::translate("AddMapFrameElementTool", "Add Data Frame"));
    layout->GetGraphicsContainer()->AddElement(frame);
  }
  frame->GetMap()->SetName(freeName(*layout));
  layout->SetFocusMap(frame->GetMap());
  tellCompanion(hook()->GetContents());
  layout->Refresh(0, false);
}

}  // namespace Plugin
