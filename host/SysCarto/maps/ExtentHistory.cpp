#include "ExtentHistory.h"

IExtentStack::~IExtentStack() = default;

namespace SysCarto {

namespace {

constexpr int maxExtents = 64;

}  // namespace

ExtentHistory::ExtentHistory(ActiveView& view) : view_(&view) {}
ExtentHistory::~ExtentHistory() = default;

bool ExtentHistory::CanRedo() const { return view_ && shown_ + 1 < extents_.size(); }
bool ExtentHistory::CanUndo() const { return view_ && shown_ > 0; }

void ExtentHistory::Redo() {
  if (CanRedo()) show(shown_ + 1);
}

void ExtentHistory::Undo() {
  if (CanUndo()) show(shown_ - 1);
}

void ExtentHistory::enter(SysGeometry::Envelope const& extent) {
  while (extents_.size() > shown_ + 1) extents_.removeLast();
  extents_ << extent;
  if (extents_.size() > maxExtents) extents_.removeFirst();
  shown_ = extents_.size() - 1;
}

void ExtentHistory::show(int index) {
  shown_ = index;
  view_->show(extents_.at(index));
}

}  // namespace SysCarto
