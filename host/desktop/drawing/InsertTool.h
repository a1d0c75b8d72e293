#pragma once

#include "HostTool.h"
#include "NewElements.h"
#include "PageGesture.h"

#include <SysFramework/BaseTool.h>

#include <memory>

class LayoutView;

/// Draws where a new element goes. Of a box, a drag spans the rectangle; of a line, it draws a straight one, while
/// clicks set one vertex after the other, which a double click or Return ends. Shift keeps squares and angles of 45
/// degrees.
class DrawGesture final : public PageGesture {
public:
  DrawGesture(SysCarto::PageLayout& layout, QPointF const& press, NewElementKind const& kind);

  /// Begins on a line near the press, if there is one.
  void snapPress();

  /// Another vertex where the mouse is.
  void addVertex();
  /// False where none is left.
  bool removeVertex();

  /// What was drawn so far, the mouse's place included.
  QVector<QPointF> points() const;

protected:
  QVector<SysUtility::_ptr_t<SysGeometry::Geometry>> outlines() const override;
  void commit() override {}
  Snapper::Result snapped(QPointF const& point) const override { return lines().ofPoint(point, snapReachCm()); }
  QString numbers() const override;

private:
  QPointF constrained() const;

  NewElementKind const& kind_;
  QVector<QPointF> fixed_;
};

/// Puts new elements of a kind on the page. A click puts one of the usual size, Return puts it in the middle of what is
/// shown, Backspace takes the last vertex back, Escape gives up what is being drawn, and then the tool.
class InsertTool final : public SysFramework::BaseTool, public HostTool {
public:
  /// Both are borrowed and outlive the tool.
  InsertTool(NewElementKind const& kind, LayoutView& view);
  ~InsertTool() override;

  bool IsEnable() override;
  bool Deactivate() override;
  void OnMouseDown(QMouseEvent* event) override;
  void OnMouseMove(QMouseEvent* event) override;
  void OnMouseUp(QMouseEvent* event) override;
  void JustMouseMove(QMouseEvent* event) override;
  void OnDblClick(QMouseEvent* event) override;
  void OnKeyDown(QKeyEvent* event) override;
  void OnEnterEvent(QEvent* event) override;
  void giveUp() override;

private:
  void moveTo(QMouseEvent const& event);
  void finish();
  void insert(QVector<QPointF> const& points);
  void write(QVector<QPointF> const& points);
  void choosePicture(QVector<QPointF> const& points);
  void insertKind(NewElementKind const& kind, QVector<QPointF> const& points, QString const& content);

  NewElementKind const& kind_;
  LayoutView& view_;
  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;  // of the gesture, as long as there is one
  std::unique_ptr<DrawGesture> gesture_;
  bool isFirstPress_ = false;
};
