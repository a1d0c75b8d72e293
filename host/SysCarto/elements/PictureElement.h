#pragma once

#include "host/SysCarto/elements/ShapeElement.h"

#include <QPolygonF>

namespace SysCarto {

class PictureSource;

/// A picture (PNG, JPEG, TIFF, WebP or SVG), linked or embedded, stretched into the element's rectangle and turned
/// about its middle. Clones share what was read.
class SYSCARTO_EXPORT PictureElement final : public ShapeElement<SysGeometry::Envelope> {
public:
  PictureElement();
  PictureElement(PictureElement const&);
  ~PictureElement() override;

  /// Absolute. The file is read when the picture is first drawn or asked for its problem; that of an embedded picture
  /// only says where it came from.
  QString path() const;

  /// The embedded picture (`EmbeddedPicture.h`); empty for one that is linked.
  QString data() const;
  void setPath(QString const& path) { setSource(path, QString()); }
  void setSource(QString const& path, QString const& data);

  /// Degrees counterclockwise about the middle of the rectangle. The envelope stays that of the picture upright.
  double angle() const { return angle_; }
  void setAngle(double degrees) { angle_ = degrees; }

  /// The rectangle as it is turned: its corners counterclockwise, the lower left one first.
  QPolygonF turnedRectangle() const;

  /// Reads the file anew, for the clones, too, when it is next asked for.
  void readAgain();

  /// Why a crossed frame is drawn in the picture's place, as a sentence; empty where the picture is drawn.
  QString problem() const;

  int GetType() const override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;
  SysUtility::_ptr_t<SysGeometry::Geometry> GetBoundary(
      SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) const override;
  SysUtility::_ptr_t<Element> Clone() const override;

private:
  std::shared_ptr<PictureSource> source_;
  double angle_ = 0;
};

}  // namespace SysCarto
