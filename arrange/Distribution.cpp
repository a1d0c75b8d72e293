#include "Distribution.h"

#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

#include <algorithm>

using SysCarto::Element;
using SysFramework::ActiveElements;
using SysFramework::EditorOperation;
using SysGeometry::Envelope;
using SysGeometry::Point;
using SysUtility::_ptr_t;

namespace Plugin {

struct DistributionCommand::Row {
  char const* context;
  char const* operation;
  double (Point::*coordinate)() const;  // of the centre of the drawn bounds
  double (Envelope::*low)() const;
  double (Envelope::*high)() const;
  double (Envelope::*size)() const;
  double (Envelope::*sortKey)() const;
  bool movesInX;
};

namespace {

using Elements = QList<_ptr_t<Element>>;

// The horizontal command sorts by the far edge, the vertical one by the near edge.
// clang-format off
constexpr DistributionCommand::Row horizontally = {"DistributeHorizontallyElements",
    QT_TRANSLATE_NOOP("DistributeHorizontallyElements", "Distribute the selected elements evenly in the horizontal direction"),
    &Point::GetX, &Envelope::GetXMin, &Envelope::GetXMax, &Envelope::GetWidth,  &Envelope::GetXMax, true};
constexpr DistributionCommand::Row vertically = {"DistributeVerticallyElements",
    QT_TRANSLATE_NOOP("DistributeVerticallyElements", "Distribute the selected elements evenly in the vertical direction"),
    &Point::GetY, &Envelope::GetYMin, &Envelope::GetYMax, &Envelope::GetHeight, &Envelope::GetYMin, false};
// clang-format on

double ofOwnRectangle(Element const& element, double (Envelope::*value)() const) {
  return (element.GetEnvelope().get()->*value)();
}

// Of equal centres the first one in the list counts.
std::pair<_ptr_t<Element>, _ptr_t<Element>> outermost(Elements const& elements, SysCarto::ActiveView const& view,
                                                      double (Point::*coordinate)() const) {
  _ptr_t<Element> low, high;
  double lowest = 0.0, highest = 0.0;
  for (auto const& element : elements) {
    auto const centre = element->GetBoundary(view.GetDisplayTransformation())->GetEnvelope()->GetAnchorPoint();
    double const value = (centre.get()->*coordinate)();
    if (!low || value < lowest) {
      low = element;
      lowest = value;
    }
    if (!high || value > highest) {
      high = element;
      highest = value;
    }
  }
  return {low, high};
}

}  // namespace

DistributionCommand::DistributionCommand(Row const& row) : row_(&row) {}

bool DistributionCommand::IsEnable() {
  ActiveElements const active(*hook());
  return active && active.container->GetSelectedElements().size() > 2;
}

void DistributionCommand::OnClick() {
  ActiveElements const active(*hook());
  if (!active) return;
  Elements const selection = active.container->GetSelectedElements();
  if (selection.isEmpty()) return;

  auto const [low, high] = outermost(selection, *active.view, row_->coordinate);
  double const start = ofOwnRectangle(*low, row_->high);
  double const end = ofOwnRectangle(*high, row_->low);
  Elements inner;
  for (auto const& element : selection)
    if (element != low && element != high) inner << element;
  std::stable_sort(inner.begin(), inner.end(), [this](auto const& a, auto const& b) {
    return ofOwnRectangle(*a, row_->sortKey) < ofOwnRectangle(*b, row_->sortKey);
  });
  double total = 0.0;
  for (auto const& element : inner) total += ofOwnRectangle(*element, row_->size);
  double const gap = (end - start - total) / (inner.size() + 1);

  {
    EditorOperation const operation(QCoreApplication::translate(row_->context, row_->operation));
    _ptr_t<Element> previous = low;
    for (auto const& element : inner) {
      double const distance = ofOwnRectangle(*previous, row_->high) + gap - ofOwnRectangle(*element, row_->low);
      auto const moved = element->Clone();
      row_->movesInX ? moved->Move(distance, 0.0) : moved->Move(0.0, distance);
      active.container->ReplaceElement(element->GetHandle(), moved);
      previous = moved;
    }
  }
  active.view->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

DistributeHorizontallyElements::DistributeHorizontallyElements() : DistributionCommand(horizontally) {}
DistributeVerticallyElements::DistributeVerticallyElements() : DistributionCommand(vertically) {}

}  // namespace Plugin
