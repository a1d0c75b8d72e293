#pragma once

#include "host/SysDisplay/PointRuns.h"
#include "host/SysDisplay/TextSymbol.h"

#include <QPainterPath>

#include <map>
#include <memory>

namespace SysDisplay {

/// A letter's outline in units of the font's size, y downwards, with its place on the baseline at (0, 0).
class Glyph {
public:
  explicit Glyph(QPainterPath const& outline) : outline_(outline), bounds_(outline_.boundingRect()) {}

  QPainterPath const& outline() const { return outline_; }
  QRectF const& bounds() const { return bounds_; }

  /// The outline as rings of straight pieces, fine enough for a font of `emPx` pixels.
  PointRuns const& rings(double emPx) const;

  /// The rings grown by a halo, given in units of the font's size; to be filled by the winding rule.
  PointRuns const& halo(double size, double emPx) const;

private:
  QPainterPath const outline_;
  QRectF const bounds_;
  mutable std::map<int, PointRuns> rings_;  // by fineness
  mutable std::map<std::pair<int, double>, PointRuns> halos_;
};

struct PlacedGlyph {
  Glyph const* glyph;
  QPointF place;  ///< from the line's start, in units of the font's size
};

struct ShapedLine {
  std::vector<PlacedGlyph> glyphs;
  double width = 0;
  QRectF ink;
};

/// A text laid out, in units of the font's size.
struct ShapedText {
  std::vector<ShapedLine> lines;
  double ascent = 0;
  double descent = 0;
};

/// Names what the shape of a text depends on, besides the text.
QString fontKeyOf(TextFormat const& format);

/// The text laid out. Kept for the next time, within a limit, and always valid for who holds it.
std::shared_ptr<ShapedText const> shapedText(TextFormat const& format, QString const& fontKey, QString const& text);

/// A width, in units of the font's size, that the text has at least. Costs a small part of what laying it out does.
double minWidth(TextFormat const& format, QString const& fontKey, QString const& text);

}  // namespace SysDisplay
