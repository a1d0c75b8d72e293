#pragma once

#include "host/SysDisplay/PointRuns.h"
#include "host/SysDisplay/TextSymbol.h"

#include <QPainterPath>
#include <QRawFont>
#include <QStringList>

#include <map>
#include <memory>

namespace SysDisplay {

/// A letter's outline in units of the font's size, y downwards, with its place on the baseline at (0, 0). The font
/// belongs to the shaper and stays.
class Glyph {
public:
  Glyph(QRawFont const& font, quint32 index, QPainterPath const& outline)
      : font_(font), index_(index), outline_(outline), bounds_(outline_.boundingRect()) {}

  /// Where it comes from. A blank has no outline.
  QRawFont const& font() const { return font_; }
  quint32 index() const { return index_; }

  QPainterPath const& outline() const { return outline_; }
  QRectF const& bounds() const { return bounds_; }

  /// The outline as rings of straight pieces, fine enough for a font of `emPx` pixels.
  PointRuns const& rings(double emPx) const;

  /// The rings grown by a halo, given in units of the font's size; to be filled by the winding rule.
  PointRuns const& halo(double size, double emPx) const;

private:
  QRawFont const& font_;
  quint32 const index_;
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
  QString text;
  std::vector<PlacedGlyph> glyphs;  ///< as they stand, from the left; blanks, too
  double width = 0;
  QRectF ink;
  std::vector<QString> letters;  ///< of each glyph, where features may have joined or changed them; else empty
};

/// A text laid out, in units of the font's size.
struct ShapedText {
  std::vector<ShapedLine> lines;
  double ascent = 0;
  double descent = 0;
  QString lacking;              ///< letters that no font has
  QStringList lackingFeatures;  ///< that were asked for
};

/// Names what the shape of a text depends on, besides the text.
QString fontKeyOf(TextFormat const& format);

/// The text laid out. Kept for the next time, within a limit, and always valid for who holds it.
std::shared_ptr<ShapedText const> shapedText(TextFormat const& format, QString const& fontKey, QString const& text);

/// What each glyph of a line that was laid out in the format stands for: its letters, which may be several, or none
/// where the glyph before it stands for them, too. In the order of the glyphs.
SYSDISPLAY_EXPORT std::vector<QString> lettersOf(TextFormat const& format, ShapedLine const& line);

/// A width, in units of the font's size, that the text has at least. Costs a small part of what laying it out does.
double minWidth(TextFormat const& format, QString const& fontKey, QString const& text);

/// What texts were not drawn with, by families of fonts.
struct FontTroubles {
  QStringList unopened;  ///< there, but they could not be opened; that lasts as long as the program runs
  QStringList missing;   ///< not there; another family stands in
  QStringList lacking;   ///< with a feature that was asked for and that they have not, in brackets
  QString letters;       ///< that no font has, so that boxes stand for them
};

/// Of the texts asked for since it was last called, each once.
SYSDISPLAY_EXPORT FontTroubles takeFontTroubles();

}  // namespace SysDisplay
