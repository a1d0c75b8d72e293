#pragma once

#include "host/SysDisplay/DrawTarget.h"

#include <SysDisplay/MarkerSymbol.h>

#include <memory>

namespace SysDisplay {

/// A marker made ready to be drawn many times at one size.
class SYSDISPLAY_EXPORT MarkerDrawing {
public:
  virtual ~MarkerDrawing();

  /// Draws the marker about a device position. On a canvas it is drawn once, and then placed.
  void drawAt(DrawTarget& target, QPointF const& position);

  /// What the marker covers about its position, in pixels, y downwards.
  virtual QRectF bounds() const = 0;

protected:
  virtual void draw(DrawTarget& target, QPointF const& position) = 0;

private:
  VectorCanvas* canvas_ = nullptr;  // which knows the marker
  int symbol_ = 0;                  // by this number
};

/// A marker symbol of this library: all its drawing stands on `prepare`.
class SYSDISPLAY_EXPORT PreparableMarker : public MarkerSymbol {
public:
  ~PreparableMarker() override;

  /// An empty pointer where there is nothing to draw.
  virtual std::unique_ptr<MarkerDrawing> prepare(double pixelsPerPoint) const = 0;

  void Draw(QPainter& painter, SysUtility::_ptr_t<DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const final;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const final;

protected:
  PreparableMarker();
  PreparableMarker(PreparableMarker const&);
  PreparableMarker& operator=(PreparableMarker const&);
};

/// A marker symbol made ready for one target.
class SYSDISPLAY_EXPORT MarkerPainter {
public:
  /// The target must outlive the painter; the symbol is read at once. A marker symbol of a foreign library draws
  /// nothing.
  MarkerPainter(DrawTarget& target, MarkerSymbol const& symbol);
  ~MarkerPainter();

  bool isVisible() const { return drawing_ != nullptr; }

  /// What the marker covers about its position, in pixels, y downwards.
  QRectF bounds() const;

  /// Draws the marker at a place given in world coordinates.
  void draw(double x, double y);

  /// Draws the marker at a place given in device pixels.
  void drawAt(QPointF const& position);

private:
  DrawTarget& target_;
  std::unique_ptr<MarkerDrawing> drawing_;
};

}  // namespace SysDisplay
