#pragma once

#include "host/SysCarto/layout/OutputChoices.h"

#include <QMarginsF>
#include <QRectF>

/// How a page lies on sheets of paper: on one, or in parts on several that overlap, to be cut and glued. Centimetres,
/// from upper left corners, y downwards.
struct PosterPlan {
  QSizeF pageCm, paperCm;
  QRectF contentCm;  ///< of each sheet, that shows the page
  double scale = 1;  ///< of the page on paper
  double overlapCm = 0;
  int columns = 1, rows = 1;

  /// Paper that lies as it comes from the printer, which leaves the margins white.
  static PosterPlan of(QSizeF const& pageCm, QSizeF const& paperCm, QMarginsF const& marginsCm,
                       SysCarto::PrintChoices const& choices);

  int sheets() const { return columns * rows; }

  /// What a sheet shows of the page.
  QRectF part(int row, int column) const;

  /// Where on the sheet.
  QRectF place(int row, int column) const;
};
