#pragma once

#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/DocumentViews.h"
#include "host/desktop/drawing/PageGesture.h"

#include <SysCarto/MapFrameElement.h>

#include <QPolygonF>

/// A label as it stands on the page.
struct ShownLabel {
  SysUtility::_ptr_t<SysCarto::VectorLayer> layer;
  QString key;                ///< of its feature; empty for no label
  QVector<QPolygonF> shapes;  ///< page centimetres; of one that bends, its letters

  bool isNone() const { return key.isEmpty(); }
  bool isSameAs(ShownLabel const& other) const { return layer == other.layer && key == other.key; }
  QPointF middle() const;
};

/// The labels of a data frame's map, to be moved and hidden by hand: as they were placed last.
class LabelHandles {
public:
  LabelHandles(SysCarto::PageLayout const& layout, SysUtility::_ptr_t<SysCarto::MapFrameElement> const& frame);

  /// The uppermost one at a pixel of the view.
  ShownLabel at(QPoint const& pixel) const;
  void paint(QPainter& painter, ShownLabel const& chosen) const;

  /// Pins a label with its middle at a place of the page, or hides it, as one step of the history.
  void move(DocumentViews& views, ShownLabel const& label, QPointF const& middle) const;
  void hide(DocumentViews& views, ShownLabel const& label) const;

private:
  void give(DocumentViews& views, ShownLabel const& label, SysCarto::PinnedLabel const& pin) const;

  SysUtility::_ptr_t<SysCarto::MapFrameElement> const frame_;
  QTransform const toPixels_;  // from the page
  QTransform toPage_;          // from the map
  QVector<ShownLabel> labels_;
};

/// Whether the tool that selects shows parts of an element to be changed: vertices, or labels of a map.
bool hasParts(SysCarto::Element const& element);

/// Moves a label.
class LabelGesture final : public PageGesture {
public:
  LabelGesture(DocumentViews& views, SysCarto::PageLayout& layout, QPointF const& press, LabelHandles const& handles,
               ShownLabel const& label);

protected:
  Outlines outlines() const override;
  void commit() override;

private:
  DocumentViews& views_;
  LabelHandles const handles_;
  ShownLabel const label_;
};
