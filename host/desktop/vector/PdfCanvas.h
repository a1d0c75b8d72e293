#pragma once

#include "PdfFonts.h"
#include "PdfObjects.h"

namespace SysDisplay {
class Glyph;
struct PlacedGlyph;
}  // namespace SysDisplay

/// Writes what is drawn as the content of a PDF page.
class PdfCanvas final : public SysDisplay::VectorCanvas {
public:
  /// A part of the page in the order in which it is read.
  struct Part {
    bool isFigure;
    QString description;
  };

  /// Both are borrowed. With `textAsShapes`, letters are outlines; without layers, none can be hidden.
  PdfCanvas(PdfObjects& objects, PdfFonts& fonts, QSize const& size, double dpi, bool textAsShapes, bool hasLayers);

  /// The content, for a page of that size in points, whose width the canvas fills from the top.
  QPDFObjectHandle content(QSizeF const& pagePt) const;

  /// From pixels to a page of that size in points, y upwards.
  QTransform toPoints(QSizeF const& pagePt) const;
  std::vector<Part> const& parts() const { return parts_; }

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
  // What the content has set last, so that it is not set again.
  struct State {
    QColor fill = Qt::black, stroke = Qt::black;
    int opacity = 255;
    QByteArray line;  // width, cap, join and miter limit
  };
  struct Content {
    QByteArray operators;
    std::vector<State> states;
    bool isBlended = false;  // something in it is mixed with what lies below
  };
  struct Sheet {
    double opacity;
    SysDisplay::CanvasBlend blend;
  };

  void saved() override;
  void restored() override;
  void clipped(SysDisplay::PointRuns const& rings) override;
  void transformed(QTransform const& transformation) override;
  void symbolBegun(QRectF const& bounds) override;
  int symbolEnded() override;

  Content& out();
  State& state() { return contents_.back().states.back(); }
  Content take();
  void setOpacity(int opacity);
  void setFill(QColor const& color);
  void setStroke(QColor const& color, SysDisplay::Stroke const& stroke);
  void path(SysDisplay::PointRuns const& runs, bool closed);
  void point(QPointF const& point, char const* verb);
  void matrix(QTransform const& transformation, char const* verb);
  void glyphs(PdfFonts::Font& font, SysDisplay::ShapedLine const& line, size_t first, size_t last,
              QTransform const& toPage);
  // Filled where there is no halo, whose stroke has that width in units of outlines.
  void placeOutline(SysDisplay::PlacedGlyph const& placed, double haloWidth, QTransform const& toPage);
  QByteArray outline(SysDisplay::Glyph const& glyph, double haloWidth);

  PdfObjects& objects_;
  PdfFonts& fonts_;
  bool const textAsShapes_, hasLayers_;
  std::vector<Content> contents_;         // the page's, and those of sheets and symbols that are open
  std::vector<QPDFObjectHandle> pieces_;  // of the page, before the first of these
  std::vector<Sheet> sheets_;
  std::vector<QRectF> symbolBounds_;
  std::vector<QByteArray> symbols_;
  std::vector<int> layers_;
  std::vector<Part> parts_;
};
