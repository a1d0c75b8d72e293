#include "Alignment.h"

#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

using SysCarto::Element;
using SysFramework::ActiveElements;
using SysFramework::EditorOperation;
using SysGeometry::Envelope;

namespace Plugin {

struct AlignmentCommand::Row {
  char const* context;
  char const* operation;
  double (*value)(Envelope const&);
  bool movesInX;  // in y otherwise
};

namespace {

double left(Envelope const& e) { return e.GetXMin(); }
double right(Envelope const& e) { return e.GetXMax(); }
double top(Envelope const& e) { return e.GetYMax(); }
double bottom(Envelope const& e) { return e.GetYMin(); }
double centre(Envelope const& e) { return (e.GetXMax() + e.GetXMin()) * 0.5; }
double middle(Envelope const& e) { return (e.GetYMax() + e.GetYMin()) * 0.5; }

// clang-format off
constexpr AlignmentCommand::Row leftRow = {"LeftAlignmentElement",
    QT_TRANSLATE_NOOP("LeftAlignmentElement", "Aligh the selected elements to the left"), left, true};
constexpr AlignmentCommand::Row rightRow = {"RightAlignmentElement",
    QT_TRANSLATE_NOOP("RightAlignmentElement", "Align the selected elements to the right"), right, true};
constexpr AlignmentCommand::Row topRow = {"TopAlignmentElement",
    QT_TRANSLATE_NOOP("TopAlignmentElement", "Align the selected elements to the top"), top, false};
constexpr AlignmentCommand::Row bottomRow = {"BottomAlignmentElement",
    QT_TRANSLATE_NOOP("BottomAlignmentElement", "Align the selected elements to ther bottom"), bottom, false};
constexpr AlignmentCommand::Row centreRow = {"CenterAlignmentElement",
    QT_TRANSLATE_NOOP("CenterAlignmentElement", "Align the selected elements to the horizontal center"), centre, true};
constexpr AlignmentCommand::Row middleRow = {"VerticalCenterAlignmentElement",
    QT_TRANSLATE_NOOP("VerticalCenterAlignmentElement", "Align the selected elements to the vertical center"), middle, false};
// clang-format on

int requiredCount(bool toMargins) { return toMargins ? 1 : 2; }

}  // namespace

AlignmentCommand::AlignmentCommand(Row const& row) : row_(&row) {}

bool AlignmentCommand::IsEnable() {
  ActiveElements const active(*hook());
  if (!active) return false;
  auto const layout = hook()->GetPageLayout();
  pageLayoutIsActive_ = layout && layout->GetGraphicsContainer() == active.container;
  if (!pageLayoutIsActive_) return active.container->GetSelectedElementCount() >= 2;
  int const required = requiredCount(layout->GetAlignToMargins());
  return active.container->GetSelectedElements().size() >= required;
}

void AlignmentCommand::OnClick() {
  ActiveElements const active(*hook());
  if (!active) return;
  auto const transform = active.view->GetDisplayTransformation();
  auto const valueOf = [&](Element const& element) {
    return row_->value(*element.GetBoundary(transform)->GetEnvelope());
  };

  auto const selection = active.container->GetSelectedElements();
  auto const layout = pageLayoutIsActive_ ? hook()->GetPageLayout() : nullptr;
  bool const toMargins = layout && layout->GetAlignToMargins();
  if (selection.size() < (layout ? requiredCount(toMargins) : 1)) return;
  if (toMargins && !layout->GetPage()) return;

  {
    EditorOperation const operation(QCoreApplication::translate(row_->context, row_->operation));
    double const reference =
        toMargins ? row_->value(*layout->GetPage()->GetPageEnvelope()) : valueOf(*selection.first());
    for (int i = toMargins ? 0 : 1; i < selection.size(); ++i) {
      auto const moved = selection[i]->Clone();
      double const distance = reference - valueOf(*moved);
      row_->movesInX ? moved->Move(distance, 0.0) : moved->Move(0.0, distance);
      active.container->ReplaceElement(selection[i]->GetHandle(), moved);
    }
  }
  active.view->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

LeftAlignmentElement::LeftAlignmentElement() : AlignmentCommand(leftRow) {}
RightAlignmentElement::RightAlignmentElement() : AlignmentCommand(rightRow) {}
TopAlignmentElement::TopAlignmentElement() : AlignmentCommand(topRow) {}
BottomAlignmentElement::BottomAlignmentElement() : AlignmentCommand(bottomRow) {}
CenterAlignmentElement::CenterAlignmentElement() : AlignmentCommand(centreRow) {}
VerticalCenterAlignmentElement::VerticalCenterAlignmentElement() : AlignmentCommand(middleRow) {}

}  // namespace Plugin
