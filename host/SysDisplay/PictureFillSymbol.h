#pragma once

#include "host/SysDisplay/PatternedFill.h"
#include "host/SysDisplay/SvgPicture.h"

namespace SysDisplay {

/// A picture that is repeated in tiles, cut off at the edge of the area. The tiles hang where hatches do.
class SYSDISPLAY_EXPORT PictureFillSymbol final : public PatternedFill {
public:
  PictureFillSymbol();
  PictureFillSymbol(PictureFillSymbol const&);
  PictureFillSymbol& operator=(PictureFillSymbol const&);
  ~PictureFillSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;

  /// Its view box is a tile. Null, as in a new symbol, draws nothing.
  std::shared_ptr<SvgPicture> const& picture() const { return picture_; }
  void setPicture(std::shared_ptr<SvgPicture> const& picture) { picture_ = picture; }

  /// Of a tile, in points; its height follows from the picture.
  double width() const { return widthPt_; }
  void setWidth(double points) { widthPt_ = points; }

  /// Degrees counterclockwise, by which tiles and pictures are turned.
  double angle() const { return angle_; }
  void setAngle(double degrees) { angle_ = degrees; }

private:
  std::unique_ptr<Filling> filling(double pixelsPerPoint) const override;

  std::shared_ptr<SvgPicture> picture_;
  double widthPt_ = 20;
  double angle_ = 0;
};

}  // namespace SysDisplay
