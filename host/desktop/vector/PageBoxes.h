#pragma once

#include <QRectF>

namespace SysDisplay {
class VectorCanvas;
}

/// What a printer cuts a sheet to, and what lies about it. Centimetres from the page's upper left corner, y downwards.
struct PageBoxes {
  QRectF trim;   ///< the page
  QRectF bleed;  ///< and what is drawn beyond its edges, so that none is left white where it is cut
  QRectF media;  ///< with the marks at which it is cut

  static PageBoxes of(QSizeF const& pageCm, double bleedCm, bool hasMarks);

  bool arePlain() const { return media == trim; }

  /// Draws the marks on a canvas of `media`: two at each corner, in line with the edges and beyond the bleed.
  void drawMarks(SysDisplay::VectorCanvas& canvas) const;
};
