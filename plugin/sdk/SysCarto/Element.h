#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/DisplayTransformation.h>
#include <SysUI/TrackerCancel.h>

#include <QString>

#include <memory>

class QPainter;

namespace SysCarto {

/// The number by which a container knows an element: unique in it, positive, never used again. 0 is no element.
using ElementHandle = int;

/// The codes that `Element::GetType` answers.
namespace ElementType {
enum : int {
  Marker = 1,
  Line = 2,
  Polygon = 3,
  Rectangle = 4,
  Ellipse = 5,
  Text = 9,
  Group = 10,
  DataFrame = 11,
  MapSurroundFrame = 12,
  Picture = 13
};
}

/// Something that is placed on a page, or on a map. Coordinates are those of its container: page centimetres with y
/// upwards, or map units.
///
/// Elements in a container are not changed in place, or undo could not bring them back: a command clones the element,
/// changes the clone and puts it in the element's place with `IElementContainer::ReplaceElement`.
class SYSCARTO_EXPORT Element : public SysUtility::CRef {
public:
  ~Element() override;

  virtual void Move(double dx, double dy) = 0;

  /// Scales about `origin`. A marker has no extent to scale and only moves; a text scales its font by sx and ignores
  /// sy.
  virtual void Scale(SysUtility::_ptr_t<SysGeometry::Point> const& origin, double sx, double sy) = 0;

  /// The container's number for the element; 0 before it is added. A clone carries its original's.
  virtual ElementHandle GetHandle() const;

  /// One of `ElementType`.
  virtual int GetType() const = 0;

  /// The element's geometry, a copy: an envelope for frames, rectangles, ellipses and pictures, a point for markers and
  /// texts.
  virtual SysUtility::_ptr_t<SysGeometry::Geometry> GetGeometry() const = 0;

  /// Places the element in a rectangle. What has no rectangle of its own is moved to its centre.
  virtual void SetGeometry(SysUtility::_ptr_t<SysGeometry::Envelope> const& rectangle) = 0;

  /// The element's own rectangle, without what its symbols add; a new object.
  virtual SysUtility::_ptr_t<SysGeometry::Envelope> GetEnvelope() const = 0;

  /// Draws with the transformation's mapping and page scale. An empty cancel object never cancels.
  virtual void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                    SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) = 0;

  /// The rectangle that `Draw` covers under the transformation, symbols, border, shadow, halo and grid labels included:
  /// a new envelope, never empty for an element that is drawn.
  virtual SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const = 0;

  /// An independent copy with the same handle. What an element refers to rather than owns (the map of a data frame) is
  /// shared.
  virtual SysUtility::_ptr_t<Element> Clone() const = 0;

  /// The name by which a person finds the element; may be empty.
  QString GetName() const;
  void SetName(QString const& name);

  /// Whoever draws a view passes over an element that is not visible; its own `Draw` and `GetBoundary` don't ask.
  bool IsVisible() const;
  void SetVisible(bool visible);

protected:
  /// What is stored of the element has changed where it lies: no step of the history knows of that.
  void changed();

  /// So has its place: the history's older steps would put it back where it no longer belongs.
  void moved();

  Element();
  Element(Element const&);
  Element& operator=(Element const&) = delete;

private:
  friend struct ElementHost;

  /// The element has another handle.
  virtual void handleChanged();

  /// A container has taken the element in, or has let it go.
  virtual void containerChanged();

  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysCarto
