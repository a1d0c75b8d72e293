#include "PageBoxes.h"

#include "host/SysDisplay/VectorCanvas.h"

namespace {

constexpr double gapCm = 0.1, markCm = 0.5;  // from the bleed to a mark, and its length
constexpr double markWidthPt = 0.25, pointsPerInch = 72;

}  // namespace

PageBoxes PageBoxes::of(QSizeF const& pageCm, double bleedCm, bool hasMarks) {
  double const about = bleedCm + (hasMarks ? gapCm + markCm : 0);
  QRectF const page({0, 0}, pageCm);
  return {page, page.adjusted(-bleedCm, -bleedCm, bleedCm, bleedCm), page.adjusted(-about, -about, about, about)};
}

void PageBoxes::drawMarks(SysDisplay::VectorCanvas& canvas) const {
  double const pxPerCm = canvas.size().width() / media.width();
  SysDisplay::PointRuns lines;
  auto const line = [&](QPointF const& from, QPointF const& to) {
    for (QPointF const& end : {from, to}) lines.add((end - media.topLeft()) * pxPerCm);
    lines.endRun();
  };
  for (double const x : {trim.left(), trim.right()}) {
    line({x, media.top()}, {x, media.top() + markCm});
    line({x, media.bottom()}, {x, media.bottom() - markCm});
  }
  for (double const y : {trim.top(), trim.bottom()}) {
    line({media.left(), y}, {media.left() + markCm, y});
    line({media.right(), y}, {media.right() - markCm, y});
  }
  SysDisplay::Stroke stroke;
  stroke.color = Qt::black;
  stroke.width = markWidthPt / pointsPerInch * canvas.dpi();
  canvas.stroke(lines, false, stroke);
}
