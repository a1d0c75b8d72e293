#include "ConvertToGraphics.h"

#include <SysCarto/GroupElement.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

using SysCarto::Element;
using SysCarto::MapSurround;
using SysCarto::MapSurroundFrame;
using SysFramework::ActiveElements;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace Plugin {

namespace {

// The surround of an element; empty for an element that can't be converted.
_ptr_t<MapSurround> convertibleSurround(_ptr_t<Element> const& element) {
  auto const frame = ptr_cast<MapSurroundFrame>(element);
  auto const surround = frame ? frame->GetMapSurround() : nullptr;
  return surround && SysCarto::SurroundKind::isMadeOfElements(surround->kind) ? surround : nullptr;
}

_ptr_t<Element> oneOf(QList<_ptr_t<Element>> const& elements) {
  if (elements.size() == 1) return elements.first();
  auto const group = SysUtility::make<SysCarto::GroupElement>();
  for (auto const& element : elements) group->AddElement(element);
  return group;
}

}  // namespace

bool ConvertToGraphics::IsEnable() {
  ActiveElements const active(*hook());
  if (!active) return false;
  auto const selected = active.container->GetSelectedElements();
  return std::any_of(selected.begin(), selected.end(),
                     [](auto const& element) { return static_cast<bool>(convertibleSurround(element)); });
}

void ConvertToGraphics::OnClick() {
  ActiveElements const active(*hook());
  auto const selected = active ? active.container->GetSelectedElements() : QList<_ptr_t<Element>>();
  if (selected.isEmpty()) return;
  {
    SysFramework::EditorOperation const operation(
        QCoreApplication::translate("ConvertToGraphics", "ConvertToGraphics"));
    for (auto const& element : selected) {
      auto const surround = convertibleSurround(element);
      if (!surround) continue;
      auto const graphics = surround->GetElements();
      if (graphics.isEmpty()) break;
      active.container->DeleteElement(element);
      auto const result = oneOf(graphics);
      active.container->AddElement(result);
      active.container->SelectElement(result);
    }
  }
  active.view->Refresh(0, true);
}

}  // namespace Plugin
