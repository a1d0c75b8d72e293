#pragma once

#include "SvgText.h"
#include "SvgWriter.h"

#include "host/SysCarto/document/PageTexts.h"
#include "host/SysDisplay/VectorCanvas.h"

#include <QHash>

namespace SysDisplay {
class Glyph;
}  // namespace SysDisplay

/// Writes what is drawn into an SVG file as it comes.
class SvgCanvas final : public SysDisplay::VectorCanvas {
public:
  struct Page {
    QSize sizePx;
    double dpi;
    QSizeF sizeMm;
    SysCarto::FileInformation information;
    bool textAsShapes = false;  ///< letters are outlines
  };

  SvgCanvas(QString const& path, Page const& page);

  /// Ends the file. Empty, or what went wrong. Once.
  QString finish();

  void fill(SysDisplay::PointRuns const& rings, QColor const& color, Qt::FillRule rule) override;
  void fill(SysDisplay::PointRuns const& rings, QGradient const& gradient, QTransform const& toPage,
            Qt::FillRule rule) override;
  void fill(SysDisplay::PointRuns const& rings, SysDisplay::Tiling const& tiling) override;
  void stroke(SysDisplay::PointRuns const& lines, bool closed, SysDisplay::Stroke const& stroke) override;
  void text(SysDisplay::TextFormat const& format, SysDisplay::ShapedLine const& line,
            QTransform const& toPage) override;
  void halo(SysDisplay::TextFormat const& format, SysDisplay::ShapedLine const& line,
            QTransform const& toPage) override;
  void picture(SysDisplay::PictureData const& picture, QTransform const& toPage) override;
  void place(int symbol, QPointF const& origin) override;
  void beginSheet(double opacity, SysDisplay::CanvasBlend blend) override;
  void endSheet() override;
  void beginText(QString const& beginning) override;
  void beginFigure(QString const& description) override;
  void endPart() override;
  void beginLayer(QString const& name) override;
  void endLayer() override;

private:
  // What clips and mappings have changed since a `save`.
  struct State {
    QTransform toUnits;
    int clips = 0;
  };

  void saved() override;
  void restored() override;
  void clipped(SysDisplay::PointRuns const& rings) override;
  void transformed(QTransform const& transformation) override;
  void symbolBegun(QRectF const& bounds) override;
  int symbolEnded() override;

  QTransform const& toUnits() const { return states_.back().toUnits; }
  QByteArray path(SysDisplay::PointRuns const& runs, bool closed) const;
  QByteArray matrix(char const* name, QTransform const& toPage) const;
  void fillBy(QByteArray const& paint, SysDisplay::PointRuns const& rings, Qt::FillRule rule);
  QByteArray glyph(SysDisplay::Glyph const& glyph);
  void outlines(SysDisplay::ShapedLine const& line, QByteArray const& attributes, QTransform const& toPage);
  void beginNamed(QString const& name, QByteArray const& more = {});

  SvgWriter writer_;
  SvgFonts fonts_;
  bool const textAsShapes_;
  std::vector<State> states_;
  std::vector<QByteArray> symbols_;  // the numbers of their definitions; empty for nothing
  QHash<SysDisplay::Glyph const*, QByteArray> glyphs_;
  QHash<qint64, QByteArray> pictures_;  // by the image's key
  int groups_ = 0;
};
