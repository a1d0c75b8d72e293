#include "Grouping.h"

#include "SelectionHandles.h"

#include "host/SysCarto/document/ElementSettings.h"
#include "host/SysCarto/elements/ElementContainer.h"

#include <SysCarto/GroupElement.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

using SysCarto::Element;
using SysCarto::GroupElement;
using SysCarto::PageLayout;
using SysCarto::ElementType::DataFrame;
using SysCarto::ElementType::MapSurroundFrame;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

using Elements = QList<_ptr_t<Element>>;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Grouping)
};

// How many groups lie in each other, the outermost one counted.
int depthOf(Element const& element) {
  auto const* const group = dynamic_cast<GroupElement const*>(&element);
  if (!group) return 0;
  int depth = 0;
  for (auto const& member : group->GetElements()) depth = std::max(depth, depthOf(*member));
  return depth + 1;
}

QSet<SysCarto::ElementHandle> handlesOf(Elements const& elements) {
  QSet<SysCarto::ElementHandle> handles;
  for (auto const& element : elements) handles << element->GetHandle();
  return handles;
}

// One step of undo, which gives the page, or the open group, these elements in this order, and selects some of them.
void rearrange(PageLayout& layout, QString const& name, Elements const& order, Elements const& selection) {
  auto& container = workplace(layout);
  {
    SysFramework::EditorOperation const operation(name);
    container.setElements(order);
  }
  container.UnselectAllElements();
  for (auto const& element : selection) container.SelectElement(element);
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

}  // namespace

bool canLieInGroup(_ptr_t<Element> const& element) {
  return element->GetType() != DataFrame && element->GetType() != MapSurroundFrame;
}

bool areShallow(Elements const& elements, PageLayout const& layout) {
  int const above = SysCarto::PageLayoutHost::openGroups(layout);
  return std::all_of(elements.begin(), elements.end(),
                     [&](auto const& element) { return depthOf(*element) + above <= SysCarto::maxGroupDepth; });
}

QString tooDeep() {
  return Texts::tr("Groups lie at most %1 deep in each other; ungroup some of them first.")
      .arg(SysCarto::maxGroupDepth);
}

QString groupSelection(PageLayout& layout) {
  auto const chosen = handlesOf(movableSelection(layout));
  auto const group = SysUtility::make<GroupElement>();
  Elements order;
  int place = 0;
  for (auto const& element : workplace(layout).GetElements()) {
    if (!chosen.contains(element->GetHandle())) {
      order << element;
      continue;
    }
    group->AddElement(element->Clone());
    place = order.size();
  }
  if (!areShallow({group}, layout)) return tooDeep();
  order.insert(place, group);
  rearrange(layout, Texts::tr("Group the selected elements"), order, {group});
  return {};
}

bool canGroup(PageLayout const& layout) {
  auto const chosen = movableSelection(layout);
  return chosen.size() >= 2 && std::all_of(chosen.begin(), chosen.end(), canLieInGroup);
}

QString ungroupSelection(PageLayout& layout) {
  auto const chosen = handlesOf(movableSelection(layout));
  Elements order, selection;
  for (auto const& element : workplace(layout).GetElements()) {
    bool const isChosen = chosen.contains(element->GetHandle());
    auto const group = isChosen ? ptr_cast<GroupElement>(element) : nullptr;
    Elements parts;
    for (auto const& member : group ? group->GetElements() : Elements()) parts << member->Clone();
    for (auto const& part : qAsConst(parts))
      if (!group->IsVisible()) part->SetVisible(false);
    if (!group) parts << element;
    order += parts;
    if (isChosen) selection += parts;
  }
  rearrange(layout, Texts::tr("Ungroup the selected elements"), order, selection);
  return {};
}

bool canUngroup(PageLayout const& layout) {
  auto const chosen = movableSelection(layout);
  return std::any_of(chosen.begin(), chosen.end(),
                     [](auto const& element) { return element->GetType() == SysCarto::ElementType::Group; });
}
