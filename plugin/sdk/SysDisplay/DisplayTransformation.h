#pragma once

#include <SysDisplay/Export.h>
#include <SysGeometry/Envelope.h>
#include <SysGeometry/Point.h>

#include <QRect>
#include <QTransform>

#include <memory>

class QPaintDevice;

namespace SysDisplay {

/// The mapping between device pixels (y downwards) and world units: page centimetres or map units (y upwards).
///
/// The visible bounds are fitted into the device frame with their aspect kept. Where a drawing needs a mapping of its
/// own it changes a clone, never the transformation of a view.
///
/// A map may be turned in its frame (`Map::GetRotation`). The bounds then say what the frame would show if the map were
/// turned back about its centre, and a part of the frame is asked for by the same part of these bounds. Points are
/// where they are on the map: `FromMapPoint`, `ToMapPoint` and `ToDevice` turn.
class SYSDISPLAY_EXPORT DisplayTransformation : public SysUtility::CRef {
public:
  DisplayTransformation();
  DisplayTransformation(DisplayTransformation const&);
  DisplayTransformation& operator=(DisplayTransformation const&);
  ~DisplayTransformation() override;

  /// An independent copy, map scale and page scale included.
  SysUtility::_ptr_t<DisplayTransformation> Clone() const;

  /// The scale denominator of the map that is shown, 25000 for 1:25,000; 0 where no map is. A value of the map: it does
  /// not follow the bounds, the frame or the page scale of a clone.
  double GetMapScale() const;

  /// Device pixels on a point of a symbol: one point is page scale × 96 / 72 pixels. 1.0 is 96 pixels an inch of page.
  /// A plain value that its owner sets; setting bounds or a device frame never changes it.
  double GetPageScale() const;
  void SetPageScale(double pageScale);

  /// The device that will be drawn on, borrowed, or null. Kept for those who ask; sizes never depend on it.
  void SetPaintDevice(QPaintDevice* device);

  /// The world rectangle to show. Corners are ordered; an empty envelope is ignored.
  virtual void SetVisibleBounds(SysUtility::_ptr_t<SysGeometry::Envelope> const& bounds);

  /// The rectangle last set, as a new object.
  virtual SysUtility::_ptr_t<SysGeometry::Envelope> GetVisibleBounds() const;

  /// What the device frame really shows: the visible bounds, widened to the aspect of the device frame. The upper left
  /// corner stays; the rectangle grows to the right or downwards. The width of a page fills the frame in any case; its
  /// height is cut at the bottom where it is too high.
  virtual SysUtility::_ptr_t<SysGeometry::Envelope> GetFittedBounds() const;

  /// The pixel rectangle that the bounds map onto, corners inclusive as in every QRect: (0, 0)–(511, 511) is 512 pixels
  /// wide, and the right edge of the bounds lies at device coordinate 512.
  virtual void SetDeviceFrame(QRect const& frame);

  /// World units to device pixels, rounded to the nearest pixel; what lies beyond the range of int saturates.
  virtual QPoint FromMapPoint(double x, double y) const;

  /// Device pixels to world units, as a new point with z = 0. The inverse of `FromMapPoint` up to its rounding.
  virtual SysUtility::_ptr_t<SysGeometry::Point> ToMapPoint(QPoint const& pixel) const;
  virtual SysUtility::_ptr_t<SysGeometry::Point> ToMapPoint(int x, int y) const;

  virtual QRect GetDeviceFrame() const;

  // For those who draw.

  QPaintDevice* GetPaintDevice() const;

  /// World units to device coordinates without rounding, with y turned over; of a turned map, with its rotation.
  QTransform ToDevice() const;

  /// Device pixels on one point (1/72 inch) of a symbol: page scale × 96 / 72.
  double PixelsPerPoint() const;

private:
  friend struct DisplayTransformationHost;
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysDisplay
