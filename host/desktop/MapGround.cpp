#include "MapGround.h"

#include <SysCarto/MapFrameElement.h>
#include <SysCarto/PageLayout.h>
#include <SysCarto/SymbolFrameParts.h>
#include <SysDisplay/SimpleFillSymbol.h>

QColor groundOfFocusMap(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  auto const frame = layout ? layout->GetFocusMapFrameElement() : nullptr;
  auto const ground = frame ? SysUtility::ptr_cast<SysCarto::SymbolBackground>(frame->GetBackground()) : nullptr;
  auto const fill = ground ? SysUtility::ptr_cast<SysDisplay::SimpleFillSymbol>(ground->GetFillSymbol()) : nullptr;
  return fill ? fill->GetColor() : QColor(Qt::white);
}
