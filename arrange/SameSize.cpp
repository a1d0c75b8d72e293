#include "SameSize.h"

#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

using SysFramework::ActiveElements;
using SysFramework::EditorOperation;

namespace Plugin {

struct SameSizeCommand::Row {
  char const* context;
  char const* operation;
  SizedExtents extents;
};

namespace {

// clang-format off
constexpr SameSizeCommand::Row sameWidth = {"MakeSameWidthElements",
    QT_TRANSLATE_NOOP("MakeSameWidthElements", "Make the selected elements the same width"), {true, false}};
constexpr SameSizeCommand::Row sameHeight = {"MakeSameHeightElements",
    QT_TRANSLATE_NOOP("MakeSameHeightElements", "Make the selected elements the same height"), {false, true}};
constexpr SameSizeCommand::Row sameSize = {"MakeSameSizeElements",
    QT_TRANSLATE_NOOP("MakeSameSizeElements", "Make the selected elements the same size"), {true, true}};
// clang-format on

}  // namespace

SameSizeCommand::SameSizeCommand(Row const& row) : row_(&row) {}

bool SameSizeCommand::IsEnable() {
  ActiveElements const active(*hook());
  return active && active.container->GetSelectedElements().size() > 1;
}

void SameSizeCommand::OnClick() {
  ActiveElements const active(*hook());
  if (!active) return;
  if (resizeSelection(*active.view, *active.container))
    active.view->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

// False where there is nothing to redraw.
bool SameSizeCommand::resizeSelection(SysCarto::ActiveView const& view, IElementContainer& container) const {
  auto const transform = view.GetDisplayTransformation();
  auto const selection = container.GetSelectedElements();
  if (selection.isEmpty()) return false;
  auto const reference = selection.last()->GetBoundary(transform)->GetEnvelope();
  double const width = reference->GetXMax() - reference->GetXMin();
  double const height = reference->GetYMax() - reference->GetYMin();

  EditorOperation const operation(QCoreApplication::translate(row_->context, row_->operation));
  for (int i = selection.size() - 2; i >= 0; --i) {
    auto const& element = selection[i];
    auto const drawn = element->GetBoundary(transform)->GetEnvelope();
    int const type = element->GetType();
    if (type == SysCarto::ElementType::Marker) return false;
    auto const resized = element->Clone();
    scaleExtents(*resized, type, *drawn, row_->extents, width, height);
    container.ReplaceElement(element->GetHandle(), resized);
  }
  container.BringForward(selection);
  return true;
}

MakeSameWidthElements::MakeSameWidthElements() : SameSizeCommand(sameWidth) {}
MakeSameHeightElements::MakeSameHeightElements() : SameSizeCommand(sameHeight) {}
MakeSameSizeElements::MakeSameSizeElements() : SameSizeCommand(sameSize) {}

}  // namespace Plugin
