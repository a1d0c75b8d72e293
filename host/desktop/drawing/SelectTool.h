#pragma once

#include "HostTool.h"
#include "PageGesture.h"
#include "VertexHandles.h"

#include "host/desktop/layers/LabelHandles.h"

#include <SysFramework/BaseTool.h>

#include <memory>
#include <optional>

class DocumentViews;

/// The host's tool for arranging a page by hand: click and Shift-click select, a drag moves, resizes by a handle or
/// spans a rubber band; a double click writes in a text, gives a data frame the focus, and shows the properties of what
/// else there is; arrow keys nudge, Escape puts back what a gesture began.
///
/// A double click on a line or polygon, or `Host_Edit`, shows its vertices: a drag moves one, or adds one in the middle
/// of a segment; Tab goes through them, Insert adds one before the chosen one, Del deletes it, arrow keys nudge it;
/// Escape or a click elsewhere leaves them. On a data frame `Host_Edit` shows the labels of its map in the same way: a
/// drag moves one, Del hides the chosen one.
class SelectTool final : public SysFramework::BaseTool, public HostTool {
public:
  /// The views are borrowed and outlive the tool.
  explicit SelectTool(DocumentViews& views);
  ~SelectTool() override;

  bool IsEnable() override;
  bool Deactivate() override;
  void OnMouseDown(QMouseEvent* event) override;
  void OnMouseMove(QMouseEvent* event) override;
  void OnMouseUp(QMouseEvent* event) override;
  void OnDblClick(QMouseEvent* event) override;
  void JustMouseMove(QMouseEvent* event) override;
  void OnKeyDown(QKeyEvent* event) override;
  void OnEnterEvent(QEvent* event) override;

  bool paintOver(QPainter& painter) override;
  bool wants(QKeyEvent const& key) const override;
  bool step(bool forward) override;
  bool editSelected() override;
  void giveUp() override;

private:
  using Selection = QList<SysUtility::_ptr_t<SysCarto::Element>>;

  void press(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout, QMouseEvent const& event);
  bool pressVertex(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout, QMouseEvent const& event);
  bool changeVertex(SysCarto::PageLayout& layout, QKeyEvent const& event);
  std::optional<VertexHandles> vertices() const;
  bool pressLabel(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout, QMouseEvent const& event);
  bool hideLabel(QKeyEvent const& event);
  std::optional<LabelHandles> labels() const;
  SysUtility::_ptr_t<SysCarto::Element> editedAlone() const;
  void leaveParts() { edited_ = 0; }
  bool nudge(SysCarto::PageLayout& layout, QKeyEvent const& event);

  DocumentViews& views_;
  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;  // of the gesture, as long as there is one
  std::unique_ptr<PageGesture> gesture_;
  Selection selectionBefore_;
  SysCarto::ElementHandle edited_ = 0;  // the element whose vertices or labels are shown
  Vertex vertex_;                       // the chosen one of these
  ShownLabel label_;
  SysUtility::_ptr_t<SysCarto::Element> clicked_;  // of several selected ones; a click alone leaves only this one
};
