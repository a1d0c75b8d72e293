#pragma once

#include "host/SysDisplay/VectorCanvas.h"

#include <SysUI/TrackerCancel.h>

#include <QPainterPath>

#include <functional>

/// Keeps what is drawn, to have a painter draw it: on paper as shapes and as letters of their fonts. What is put on the
/// page with opacity, or mixed with what lies below, is drawn as a picture of the canvas's resolution.
class PainterCanvas final : public SysDisplay::VectorCanvas {
public:
  using VectorCanvas::VectorCanvas;

  /// The painter draws in the canvas's pixels. Goes on until `cancel`, which may be null, says so.
  void paint(QPainter& painter, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  using VectorCanvas::fill;
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
  void beginLayer(QString const&) override {}
  void endLayer() override {}

private:
  using Action = std::function<void(QPainter&)>;
  struct Sheet {
    std::vector<Action> actions;
    double opacity = 1;
    SysDisplay::CanvasBlend blend = SysDisplay::CanvasBlend::Normal;
    bool isBlended = false;  // something in it is mixed with what lies below
    QRectF bounds;           // of what is in it, in pixels of the canvas
  };
  struct Symbol {
    std::shared_ptr<std::vector<Action> const> actions;
    QRectF bounds;
  };

  void saved() override;
  void restored() override;
  void clipped(SysDisplay::PointRuns const& rings) override;
  void transformed(QTransform const& transformation) override;
  void symbolBegun(QRectF const& bounds) override;
  int symbolEnded() override;

  void add(Action action) { sheets_.back().actions.push_back(std::move(action)); }
  void draw(QRectF const& bounds, Action action);
  void fillPath(QPainterPath const& path, QBrush const& brush);
  static void run(std::vector<Action> const& actions, QPainter& painter);
  static void runAsPicture(Sheet const& sheet, QRectF const& area, QPainter& painter);

  std::vector<Sheet> sheets_ = std::vector<Sheet>(1);
  std::vector<QTransform> toCanvas_ = std::vector<QTransform>(1);
  std::vector<QRectF> begun_;  // bounds of the symbols that are being drawn, one in the other
  std::vector<Symbol> symbols_;
};
