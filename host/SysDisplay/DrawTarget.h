#pragma once

#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/FillQueue.h"
#include "host/SysDisplay/VectorCanvas.h"

#include <SysDisplay/DisplayTransformation.h>

#include <QRectF>

class QPainter;

namespace SysDisplay {

/// The pixels of a painter that can be reached, in its own coordinates: those of its device that it does not clip away.
SYSDISPLAY_EXPORT QRectF reachableArea(QPainter const& painter);

/// A painter with the mapping of what is drawn on it. Stands for one stretch of drawing, and all that is drawn in it
/// goes through it, since fills are drawn later than they are added. The painter's state is put back at its end.
///
/// The painter may have a transformation of its own that moves by whole pixels, and clipping; both are respected. On a
/// `VectorCanvas`, the canvas alone has them.
class SYSDISPLAY_EXPORT DrawTarget {
public:
  DrawTarget(QPainter& painter, DisplayTransformation const& transformation);

  /// `pixelsPerPoint` are the device pixels on one point (1/72 inch) of a symbol, `anchor` is the device position that
  /// hatches and the like hang on.
  DrawTarget(QPainter& painter, QTransform const& toDevice, double pixelsPerPoint, QPointF const& anchor = {});
  ~DrawTarget();
  DrawTarget(DrawTarget const&) = delete;
  DrawTarget& operator=(DrawTarget const&) = delete;

  /// Fills the runs as rings, by and by.
  void fill(PointRuns const& rings, QColor const& color, Qt::FillRule rule);

  /// The same with pixels in place of a colour; not on a canvas.
  void fill(PointRuns const& rings, std::shared_ptr<Texture const> const& texture, Qt::FillRule rule);
  QImage::Format textureFormat() const { return fills_.textureFormat(); }

  /// When it returns, all fills so far are drawn.
  void finish() { fills_.finish(); }

  /// For what is no fill; all fills so far are drawn before. Pen, brush and antialiasing may be set, and what else of
  /// its state is changed is to be put back.
  QPainter& painter() {
    fills_.finish();
    return painter_;
  }

  /// Where the painter makes shapes in place of pixels, what takes them; else null.
  VectorCanvas* canvas() const { return canvas_; }

  QTransform const& toDevice() const { return toDevice_; }
  double pixelsPerPoint() const { return pixelsPerPoint_; }

  /// The pixels that can be reached, in the painter's coordinates.
  QRectF const& area() const { return area_; }

  /// Where hatches and the like hang.
  QPointF const& anchor() const { return anchor_; }

private:
  QPainter& painter_;
  VectorCanvas* const canvas_;
  QTransform const toDevice_;
  double const pixelsPerPoint_;
  QPointF const anchor_;
  QRectF const area_;
  FillQueue fills_;
};

}  // namespace SysDisplay
