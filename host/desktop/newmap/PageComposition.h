#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

/// Where things lie on the page of a new map, and what they look like, as a document stores it. Centimetres, y upwards;
/// of a QRectF the top is the lower side. Everything grows with the page, a little slower than it.
class PageComposition {
public:
  explicit PageComposition(QSizeF const& pageCm);

  /// Of lengths and letters, against an A4 sheet.
  double unit() const { return unit_; }

  /// The data frame between title and foot; with room about it for the labels of a graticule.
  QRectF frame(bool hasGraticule) const;

  /// A legend of that size in a corner of the frame, 0 to 3, the lower left one first.
  QRectF corner(QRectF const& frame, QSizeF const& legend, int which) const;

  /// Whether a legend that is not over the map lies below it, on a page that stands upright and below a broad globe, or
  /// to its right.
  bool isLegendBelow(bool isGlobe) const { return isGlobe || page_.width() <= page_.height(); }

  /// What a legend may take of the page.
  QSizeF roomForLegend(bool isGlobe) const;

  /// Below the frame or to its right; `frame` then is what is left of it.
  QRectF beside(QRectF& frame, QSizeF const& legend, bool isGlobe, bool hasGraticule) const;

  QJsonObject dataFrame(QRectF const& frame, bool isGlobe, char const* background, bool hasGraticule) const;
  QJsonObject title(QString const& text) const;
  QJsonObject legend(QRectF const& place, QJsonArray const& entries, bool isOverMap) const;
  QJsonArray scale(bool isGlobe) const;
  QJsonObject northArrow() const;
  QJsonObject credits(bool hasArrow) const;

private:
  double left() const { return margin_; }
  double right() const { return page_.width() - margin_; }
  double footHeight() const { return 1.5 * unit_; }

  QSizeF const page_;
  double const unit_, margin_;
};
