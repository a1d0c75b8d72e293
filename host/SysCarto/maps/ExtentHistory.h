#pragma once

#include <SysCarto/ActiveView.h>

#include <QList>

namespace SysCarto {

/// The extents that one view has shown, as they were asked for.
class ExtentHistory final : public IExtentStack {
public:
  explicit ExtentHistory(ActiveView& view);
  ~ExtentHistory() override;

  bool CanRedo() const override;
  bool CanUndo() const override;
  void Redo() override;
  void Undo() override;

  bool isEmpty() const { return extents_.isEmpty(); }

  /// Drops the extents that were undone.
  void enter(SysGeometry::Envelope const& extent);

  /// The view is gone; somebody still holds its history.
  void detach() { view_ = nullptr; }

private:
  void show(int index);

  ActiveView* view_;
  QList<SysGeometry::Envelope> extents_;
  int shown_ = -1;
};

}  // namespace SysCarto
