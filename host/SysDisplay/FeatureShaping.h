#pragma once

#include <QPointF>
#include <QRawFont>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

struct hb_font_t;

namespace SysDisplay {

/// False for what names no OpenType feature: a tag of four characters, "smcp", alone or with a value, "liga=0".
bool isFontFeature(QString const& feature);

/// A glyph of a stretch of text.
struct FeaturedGlyph {
  quint32 index;
  int letter;     ///< where in the line the letters begin that it stands for
  QPointF place;  ///< from the stretch's beginning on the baseline, in units of the font's size, y downwards
};

/// Shapes with OpenType features, which Qt can't. What HarfBuzz knows of a font is read of it once.
class FeatureShaper {
public:
  FeatureShaper();
  ~FeatureShaper();

  /// The part of a line from one place to another that this font draws from left to right; `advance` becomes its width,
  /// with the spacing behind each of its letters. Both in units of the font's size. Features that the font has not are
  /// added to `lacking`.
  std::vector<FeaturedGlyph> shape(QRawFont const& font, QStringList const& features, QString const& line, int from,
                                   int to, double spacing, double& advance, QStringList& lacking);

private:
  struct Known;
  Known& known(QRawFont const& font);

  std::vector<std::unique_ptr<Known>> known_;
};

}  // namespace SysDisplay
