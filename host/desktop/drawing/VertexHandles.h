#pragma once

#include "PageGesture.h"

/// A vertex of a line or a polygon; or, where it is new, the middle of the segment before it, at which one can be
/// added.
struct Vertex {
  int ring = -1;
  int index = 0;
  bool isNew = false;

  bool isNone() const { return ring < 0; }
};

/// The vertices of a line or polygon on the page, as handles, and the element with others.
class VertexHandles {
public:
  using Rings = QVector<QVector<QPointF>>;

  VertexHandles(SysCarto::PageLayout const& layout, SysUtility::_ptr_t<SysCarto::Element> const& element);

  static bool hasVertices(SysCarto::Element const& element);

  /// The one at a pixel of the view; a real one before the middle of a segment.
  Vertex at(QPoint const& pixel) const;
  void paint(QPainter& painter, Vertex const& chosen) const;

  /// Page centimetres. A line is one ring that is not closed; the first vertex of a ring is not repeated.
  Rings const& rings() const { return rings_; }
  bool isClosed() const { return isClosed_; }
  QPointF place(Vertex const& vertex) const;

  /// The next one in drawing order, or the one before it; the first for none.
  Vertex next(Vertex const& vertex, bool forward) const;

  /// With the vertex at another place, or added there.
  Rings moved(Vertex const& vertex, QPointF const& to) const;

  /// Without it; empty where too few would be left. A ring that is left with two goes with it.
  Rings without(Vertex const& vertex) const;

  /// Puts an element with these vertices in its place, as one step of the history.
  void replace(SysCarto::PageLayout& layout, QString const& stepName, Rings const& rings) const;

private:
  SysUtility::_ptr_t<SysCarto::Element> const element_;
  QTransform const toDevice_;
  bool isClosed_ = false;
  Rings rings_;
};

/// Moves a vertex, or adds one and moves it.
class VertexGesture final : public PageGesture {
public:
  VertexGesture(SysCarto::PageLayout& layout, QPointF const& press,
                SysUtility::_ptr_t<SysCarto::Element> const& element, Vertex const& vertex);

protected:
  Outlines outlines() const override;
  void commit() override;
  Snapper::Result snapped(QPointF const& point) const override;
  QString numbers() const override;
  QSet<SysCarto::ElementHandle> dragged() const override { return {handle_}; }

private:
  QPointF target() const { return start_ + point() - press(); }

  VertexHandles const handles_;
  SysCarto::ElementHandle const handle_;
  Vertex const vertex_;
  QPointF const start_;
};
