#pragma once

#include <SysUI/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

#include <QCursor>

class QContextMenuEvent;
class QEvent;
class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace SysUI {

/// The mouse and keyboard face of a tool. While a tool is current it receives the events of the layout view; positions
/// are device pixels of the view. Where an operation answers bool, true means that the tool has dealt with the event.
class SYSUI_EXPORT ITool : public virtual SysUtility::CRef {
public:
  ~ITool() override;

  virtual QCursor GetCursor() = 0;

  /// Called when the tool becomes current.
  virtual bool Activate() = 0;

  /// Called when another tool takes over; false keeps this one.
  virtual bool Deactivate() = 0;
  virtual bool OnContextMenu(QContextMenuEvent* event) = 0;
  virtual void OnDblClick(QMouseEvent* event) = 0;
  virtual void OnKeyDown(QKeyEvent* event) = 0;
  virtual void OnKeyUp(QKeyEvent* event) = 0;
  virtual void OnMouseDown(QMouseEvent* event) = 0;

  /// A move with a button down, so only between `OnMouseDown` and `OnMouseUp`.
  virtual void OnMouseMove(QMouseEvent* event) = 0;
  virtual void OnMouseUp(QMouseEvent* event) = 0;

  /// A move without a button.
  virtual void JustMouseMove(QMouseEvent* event) = 0;
  virtual void OnEnterEvent(QEvent* event) = 0;
  virtual void OnLeaveEvent(QEvent* event) = 0;
  virtual bool OnWheelEvent(QWheelEvent* event) = 0;
};

}  // namespace SysUI
