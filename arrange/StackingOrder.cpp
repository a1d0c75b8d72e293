#include "StackingOrder.h"

#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

using SysFramework::ActiveElements;
using SysFramework::EditorOperation;

namespace Plugin {

struct StackingOrderCommand::Row {
  char const* context;
  char const* operation;
  void (IElementContainer::*restack)(QList<IElementContainer::ElementPtr> const&);
};

namespace {

// clang-format off
constexpr StackingOrderCommand::Row forward = {"BringForwardElements",
    QT_TRANSLATE_NOOP("BringForwardElements", "Bring the selected elements forward"), &IElementContainer::BringForward};
constexpr StackingOrderCommand::Row toFront = {"BringToFrontElements",
    QT_TRANSLATE_NOOP("BringToFrontElements", "Bring the selected elements to the front"), &IElementContainer::BringToFront};
constexpr StackingOrderCommand::Row backward = {"SendBackwardElements",
    QT_TRANSLATE_NOOP("SendBackwardElements", "Send the selected elements backward"), &IElementContainer::SendBackward};
constexpr StackingOrderCommand::Row toBack = {"SendToBackElements",
    QT_TRANSLATE_NOOP("SendToBackElements", "Send the selected elements to the back"), &IElementContainer::SendToBack};
// clang-format on

}  // namespace

StackingOrderCommand::StackingOrderCommand(Row const& row) : row_(&row) {}

bool StackingOrderCommand::IsEnable() {
  ActiveElements const active(*hook());
  return active && !active.container->GetSelectedElements().isEmpty();
}

void StackingOrderCommand::OnClick() {
  ActiveElements const active(*hook());
  if (!active) return;
  {
    EditorOperation const operation(QCoreApplication::translate(row_->context, row_->operation));
    (active.container->*row_->restack)(active.container->GetSelectedElements());
  }
  active.view->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

BringForwardElements::BringForwardElements() : StackingOrderCommand(forward) {}
BringToFrontElements::BringToFrontElements() : StackingOrderCommand(toFront) {}
SendBackwardElements::SendBackwardElements() : StackingOrderCommand(backward) {}
SendToBackElements::SendToBackElements() : StackingOrderCommand(toBack) {}

}  // namespace Plugin
