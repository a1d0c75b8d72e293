#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/Symbol.h>

class QCursor;
class QPointF;
class QString;

namespace SysCarto {

/// The screen on which a view is shown, as the view sees it. The desktop implements it.
class SYSCARTO_EXPORT ViewSurface {
public:
  virtual ~ViewSurface();

  // An overlay pass: what is drawn between the two replaces what the pass before it drew.
  virtual void beginTracker() = 0;
  virtual void endTracker() = 0;

  /// The cached picture, moved by device pixels, y downwards.
  virtual void trackerOffset(double dx, double dy) = 0;

  /// `transformation` is a clone of the view's at page scale 1.
  virtual void trackerShape(SysDisplay::Symbol const& symbol, SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry,
                            SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) = 0;

  /// A line of text beside a place, in pixels of the view.
  virtual void trackerText(QString const& text, QPointF const& placePx) = 0;

  /// Asks for a redraw of one `RefreshPhase`.
  virtual void refresh(int phase) = 0;

  /// Drops what the tracker drew, and a pass that is open.
  virtual void clearOverlay() = 0;
  virtual void setCursor(QCursor const& cursor) = 0;
};

}  // namespace SysCarto
