#pragma once

#include "host/SysDisplay/MarkerPainter.h"
#include "host/SysDisplay/SvgPicture.h"

#include <QByteArray>

namespace SysDisplay {

/// A marker that an SVG describes. The SVG's view box is the marker: its longer side is the marker's size and its
/// centre lies on the point.
class SYSDISPLAY_EXPORT SvgMarkerSymbol final : public PreparableMarker {
public:
  SvgMarkerSymbol();
  SvgMarkerSymbol(SvgMarkerSymbol const&);
  SvgMarkerSymbol& operator=(SvgMarkerSymbol const&);
  ~SvgMarkerSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  std::unique_ptr<MarkerDrawing> prepare(double pixelsPerPoint) const override;

  /// Null, as in a new symbol, draws nothing.
  std::shared_ptr<SvgPicture> const& picture() const { return picture_; }
  void setPicture(std::shared_ptr<SvgPicture> const& picture) { picture_ = picture; }

  /// Takes an SVG in UTF-8. Answers why it was refused, as a sentence, and keeps the former one then; empty when taken.
  QString setSvg(QByteArray const& svg);

private:
  std::shared_ptr<SvgPicture> picture_;
};

}  // namespace SysDisplay
