#pragma once

#include <SysDisplay/Export.h>

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QString>

#include <memory>

class QPainter;

namespace SysDisplay {

/// Counts what it costs to draw an SVG of that length once on all that a painter reaches.
SYSDISPLAY_EXPORT void spendOnSvg(int bytes, QPainter const& painter);

/// An SVG that can be drawn. It never changes, so that symbols share it. Belongs to one thread.
class SYSDISPLAY_EXPORT SvgPicture {
public:
  /// Reads an SVG in UTF-8. Null, with the reason as a sentence, where it is refused.
  static std::shared_ptr<SvgPicture> of(QByteArray const& svg, QString& problem);
  ~SvgPicture();
  SvgPicture(SvgPicture const&) = delete;
  SvgPicture& operator=(SvgPicture const&) = delete;

  QByteArray const& svg() const;

  /// In the SVG's units; not empty.
  QRectF viewBox() const;

  /// Draws the view box into a rectangle; what lies beyond it shows, too.
  void render(QPainter& painter, QRectF const& rectangle);

  /// The view box alone, as an image of that size on transparent ground, in the format ARGB32_Premultiplied. The last
  /// one is kept: the tiles of a page ask for the same.
  QImage const& drawn(QSize const& size);

private:
  SvgPicture();
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysDisplay
