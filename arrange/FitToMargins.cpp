#include "FitToMargins.h"

#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

#include <algorithm>

using SysCarto::Element;
using SysFramework::ActiveElements;
using SysFramework::EditorOperation;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace Plugin {

struct FitToMarginsCommand::Row {
  char const* context;
  char const* operation;
  SizedExtents extents;
};

namespace {

// clang-format off
constexpr FitToMarginsCommand::Row fitWidth = {"FitWidthtoMarginsElements",
    QT_TRANSLATE_NOOP("FitWidthtoMarginsElements", "Make the selected elements the same width as the printer margin"), {true, false}};
constexpr FitToMarginsCommand::Row fitHeight = {"FitHeighttoMarginsElements",
    QT_TRANSLATE_NOOP("FitHeighttoMarginsElements", "Make the selected elements the same height as the printer margin"), {false, true}};
constexpr FitToMarginsCommand::Row fitBoth = {"FittoMarginsElements",
    QT_TRANSLATE_NOOP("FittoMarginsElements", "Make the selected elements the same size as the printer margin"), {true, true}};
// clang-format on

}  // namespace

FitToMarginsCommand::FitToMarginsCommand(Row const& row) : row_(&row) {}

bool FitToMarginsCommand::IsEnable() {
  ActiveElements const active(*hook());
  if (!active || !hook()->GetPageLayout()) return false;
  auto const selection = active.container->GetSelectedElements();
  return !selection.isEmpty() && std::none_of(selection.begin(), selection.end(), [](auto const& element) {
    int const type = element->GetType();
    return type == SysCarto::ElementType::MapSurroundFrame || type == SysCarto::ElementType::Marker;
  });
}

void FitToMarginsCommand::OnClick() {
  auto const layout = hook()->GetPageLayout();
  if (!layout) return;
  auto const transform = layout->GetDisplayTransformation();
  ActiveElements const active(*hook());
  if (!active || !layout->GetPage()) return;
  auto const selection = active.container->GetSelectedElements();
  auto const margins = layout->GetPage()->GetPageEnvelope();

  {
    EditorOperation const operation(QCoreApplication::translate(row_->context, row_->operation));
    for (auto const& element : selection)
      active.container->ReplaceElement(element->GetHandle(), fitted(*element, transform, *margins));
    active.container->BringForward(selection);
  }
  active.view->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

// Stretched by its drawn bounds, then placed by its own rectangle.
_ptr_t<Element> FitToMarginsCommand::fitted(Element const& element,
                                            _ptr_t<SysDisplay::DisplayTransformation> const& transform,
                                            Envelope const& margins) const {
  auto const drawn = element.GetBoundary(transform)->GetEnvelope();
  int const type = element.GetType();
  auto const copy = element.Clone();
  scaleExtents(*copy, type, *drawn, row_->extents, margins.GetWidth(), margins.GetHeight());

  auto const own = copy->GetEnvelope();
  bool const movesUp = row_->extents.height && !(type == SysCarto::ElementType::Text && row_->extents.width);
  copy->Move(row_->extents.width ? margins.GetXMin() - own->GetXMin() : 0.0,
             movesUp ? margins.GetYMin() - own->GetYMin() : 0.0);
  return copy;
}

FitWidthtoMarginsElements::FitWidthtoMarginsElements() : FitToMarginsCommand(fitWidth) {}
FitHeighttoMarginsElements::FitHeighttoMarginsElements() : FitToMarginsCommand(fitHeight) {}
FittoMarginsElements::FittoMarginsElements() : FitToMarginsCommand(fitBoth) {}

}  // namespace Plugin
