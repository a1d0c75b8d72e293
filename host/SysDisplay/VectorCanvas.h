#pragma once

#include "host/SysDisplay/DashLine.h"
#include "host/SysDisplay/PointRuns.h"
#include "host/SysDisplay/TextSymbol.h"

#include <SysDisplay/LineSymbol.h>

#include <QBrush>
#include <QImage>
#include <QPaintDevice>
#include <QSize>
#include <QSizeF>
#include <QTransform>

#include <memory>

class QPainter;

namespace SysDisplay {

struct ShapedLine;

/// How a line is drawn; lengths in the canvas's pixels.
struct Stroke {
  QColor color;
  double width = 0;
  LineCapStyle cap = LineCapStyle::Butt;
  LineJoinStyle join = LineJoinStyle::Miter;
  double miterLimit = 0;  ///< in widths, as a symbol has it: twice the tip's distance from the vertex
  Dashes dashes = {};     ///< each run begins anew with them
};

/// A picture as a file holds it.
struct PictureData {
  QImage image;
  QByteArray jpeg;  ///< the same as a JPEG file, where it is one that can be kept as it is; else empty
};

enum class CanvasBlend { Normal, Multiply, Screen };

/// A symbol over and over, side by side.
struct Tiling {
  int symbol = 0;
  QSizeF size;        ///< of one tile, whose upper left corner lies at the symbol's origin
  QTransform toPage;  ///< of the tile that begins at (0, 0)
};

/// The stops of a gradient, so many that colours and opacity can be mixed apart between two of them, as files have it.
SYSDISPLAY_EXPORT QGradientStops straightStops(QGradient const& gradient);

/// A page made of shapes and texts in place of pixels: what the vector formats are written from.
///
/// All coordinates are pixels of a page at some resolution, y downwards, as those of an image; they may have fractions.
/// Whatever draws through a `DrawTarget` draws on the canvas, too, when its painter's device is a `VectorDevice`.
/// Belongs to one thread.
class SYSDISPLAY_EXPORT VectorCanvas {
public:
  /// `dpi` are the pixels on one inch of paper.
  VectorCanvas(QSize const& size, double dpi);
  virtual ~VectorCanvas();
  VectorCanvas(VectorCanvas const&) = delete;
  VectorCanvas& operator=(VectorCanvas const&) = delete;

  /// The canvas on which a painter draws; null where that is something of pixels.
  static VectorCanvas* of(QPainter const& painter);

  QSize const& size() const { return size_; }
  double dpi() const { return dpi_; }

  /// Points nearer to each other than this, in pixels, are one in an outline: 1/1200 inch.
  double thinPx() const { return dpi_ / 1200; }

  /// What can be seen, in the coordinates that hold now.
  QRectF const& area() const { return areas_.back(); }

  /// What `clip` and `transform` change holds until the `restore` that belongs to the `save` before them.
  void save();
  void restore();

  /// Cuts what follows to rings, even-odd.
  void clip(PointRuns const& rings);
  void clip(QRectF const& rectangle);

  /// What follows is mapped first.
  void transform(QTransform const& transformation);

  virtual void fill(PointRuns const& rings, QColor const& color, Qt::FillRule rule) = 0;

  /// Fills by a linear or radial gradient in logical coordinates, which `toPage` maps; it pads.
  virtual void fill(PointRuns const& rings, QGradient const& gradient, QTransform const& toPage, Qt::FillRule rule) = 0;

  /// Fills, even-odd, by tiles.
  virtual void fill(PointRuns const& rings, Tiling const& tiling) = 0;

  /// Strokes lines, or rings, by one colour: where they cross, nothing is darker than elsewhere.
  virtual void stroke(PointRuns const& lines, bool closed, Stroke const& stroke) = 0;

  /// One line of a text, and what lies behind its letters. `toPage` maps from units of the font's size, with the origin
  /// at the line's start on its baseline, y downwards.
  virtual void text(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) = 0;
  virtual void halo(TextFormat const& format, ShapedLine const& line, QTransform const& toPage) = 0;

  /// A picture, its corners (0, 0) and (1, 1) mapped by `toPage`.
  virtual void picture(PictureData const& picture, QTransform const& toPage) = 0;

  /// What is drawn between the two is kept under a number, and nowhere shown; `bounds` is what it may cover about the
  /// origin.
  void beginSymbol(QRectF const& bounds);
  int endSymbol();
  virtual void place(int symbol, QPointF const& origin) = 0;

  /// What is drawn between the two is put on the page as one sheet.
  virtual void beginSheet(double opacity, CanvasBlend blend) = 0;
  virtual void endSheet() = 0;

  /// What is drawn between the two is one thing to who has the page read to him: a text, or a figure described by
  /// words. A text is told by its beginning.
  virtual void beginText(QString const& beginning);
  virtual void beginFigure(QString const& description);
  virtual void endPart();

  /// What is drawn between the two can be hidden and shown by its name; in another one it lies below that.
  virtual void beginLayer(QString const& name) = 0;
  virtual void endLayer() = 0;

protected:
  virtual void saved() = 0;
  virtual void restored() = 0;
  virtual void clipped(PointRuns const& rings) = 0;
  virtual void transformed(QTransform const& transformation) = 0;
  virtual void symbolBegun(QRectF const& bounds) = 0;
  virtual int symbolEnded() = 0;

private:
  QSize const size_;
  double const dpi_;
  std::vector<QRectF> areas_;
};

/// The device by which a painter draws on a canvas.
class SYSDISPLAY_EXPORT VectorDevice final : public QPaintDevice {
public:
  /// The canvas is borrowed.
  explicit VectorDevice(VectorCanvas& canvas);
  ~VectorDevice() override;

  VectorCanvas& canvas() const { return canvas_; }
  QPaintEngine* paintEngine() const override;

protected:
  int metric(PaintDeviceMetric metric) const override;

private:
  VectorCanvas& canvas_;
  std::unique_ptr<QPaintEngine> engine_;
};

}  // namespace SysDisplay
