#pragma once

#include <SysCarto/IElementContainer.h>
#include <SysCarto/IExtentStack.h>
#include <SysDisplay/DisplayTransformation.h>
#include <SysDisplay/Symbol.h>

#include <memory>

namespace SysCarto {

class Map;

/// What `ActiveView::PartialRefresh` is asked to draw again.
namespace RefreshPhase {
enum : int { Elements = 8, Everything = 255 };
}

/// Base of every view: the page layout, or a map. A command tells them apart by `dynamic_cast` to `PageLayout`.
///
/// Where a view is shown on a screen, refreshing and tracking reach it through a surface that the desktop supplies;
/// without one they do nothing, and everything else works.
class SYSCARTO_EXPORT ActiveView : public SysUtility::CRef {
public:
  ~ActiveView() override;

  /// What the view shows, in page or map units, fitted to its frame: a copy that the caller may change.
  virtual SysUtility::_ptr_t<SysGeometry::Envelope> GetExtent() const;

  /// Shows that extent, centred, from now on, and enters it in the extent history. Corners are ordered, and a flat
  /// rectangle is widened to the view's aspect; a rectangle that is a point or not a number is ignored. Not redrawn.
  virtual void SetExtent(SysUtility::_ptr_t<SysGeometry::Envelope> const& extent);

  /// The history of extents; never empty.
  virtual SysUtility::_ptr_t<IExtentStack> GetExtentStack() const;

  /// The map of the focus data frame; empty where there is none. A map is its own focus map.
  virtual SysUtility::_ptr_t<Map> GetFocusMap() const;
  virtual void SetFocusMap(SysUtility::_ptr_t<Map> const& map);

  /// The view's elements, borrowed; null when it has none.
  virtual IElementContainer* GetGraphicsContainer() const;

  /// Between the view's device pixels and page or map units. The object itself: clone it to change it.
  virtual SysUtility::_ptr_t<SysDisplay::DisplayTransformation> GetDisplayTransformation() const;

  // An overlay pass over the view's cached picture. What it draws replaces what the pass before it drew; nothing of the
  // layout is drawn again.
  virtual void BeginTrackerDraw();
  virtual void EndTrackerDraw();

  /// Inside a pass: the cached picture, moved by (dx, dy) device pixels, y downwards.
  virtual void DrawTrackerOffset(double dx, double dy);

  /// Inside a pass: a geometry in page or map units, its symbol at page scale 1.
  virtual void DrawTrackerShape(SysUtility::_ptr_t<SysDisplay::Symbol>& symbol,
                                SysUtility::_ptr_t<SysGeometry::Geometry>& geometry);

  /// Redraws for a phase: 8 after elements changed, 255 after the extent changed. `object` is always empty.
  virtual void PartialRefresh(int phase, SysUtility::_ptr_t<SysUtility::CRef> const& object);

  /// Redraws everything; with `overlay` true also clears what the tracker drew. `mode` is 0.
  virtual void Refresh(int mode, bool overlay);

  /// Redraws everything after the extent moved.
  virtual void RedrawAll(bool overlay);

  /// Drops an overlay or drag in progress and nothing else: the next refresh works as before.
  virtual void Deactivate();

protected:
  ActiveView();

  /// Shows an extent without entering it in the history. Called by `SetExtent` and by the history.
  virtual void applyExtent(SysGeometry::Envelope const& extent);

  /// The same, and again for each other frame that the view is given.
  void show(SysGeometry::Envelope const& extent);

private:
  void followFrame();

  struct Private;
  std::unique_ptr<Private> d;
  friend class ExtentHistory;
  friend struct ActiveViewHost;
};

}  // namespace SysCarto
