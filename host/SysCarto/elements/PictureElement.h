#pragma once

#include "host/SysCarto/elements/ShapeElement.h"

namespace SysCarto {

class PictureSource;

/// A picture from a file (PNG, JPEG or SVG), stretched into the element's rectangle. Clones share what was read.
class SYSCARTO_EXPORT PictureElement final : public ShapeElement<SysGeometry::Envelope> {
public:
  PictureElement();
  PictureElement(PictureElement const&);
  ~PictureElement() override;

  /// Absolute. The file is read when the picture is first drawn or asked for its problem.
  QString path() const;
  void setPath(QString const& path);

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
};

}  // namespace SysCarto
