#include "FeaturePainter.h"

#include "host/SysDisplay/LayeredSymbol.h"
#include "host/SysDisplay/MarkerPainter.h"
#include "host/SysDisplay/PathDrawing.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

using namespace SysDisplay;

namespace {

// Draws part by part.
class PartsPainter : public FeaturePainter {
public:
  void draw(ThinnedFeatures& features, int feature, Box const& area) final {
    for (Part const& part : features.parts(feature))
      if (part.box.meets(area)) add(part);
    drawAdded(features.box(feature));
  }

private:
  // Takes a part, whatever its kind.
  virtual void add(Part const& part) = 0;

  // Draws what was taken of a feature that covers this much of the map.
  virtual void drawAdded(Box const& feature) = 0;
};

class PathPainter final : public PartsPainter {
public:
  PathPainter(std::unique_ptr<PathDrawing> drawing, bool drawsLines)
      : drawing_(std::move(drawing)), drawsLines_(drawsLines) {}
  double reachPx() const override { return drawing_->reachPx(); }

private:
  void add(Part const& part) override {
    switch (part.kind) {
      case PartKind::Ring: return drawing_->addRing(part.run());
      case PartKind::FilledRing: return drawing_->addRing(part.run(), false);
      case PartKind::Outline: return drawing_->addLine(part.run());
      case PartKind::Line:
        if (drawsLines_) drawing_->addLine(part.run());
        return;
      case PartKind::Point: return;
    }
  }
  void drawAdded(Box const& feature) override { drawing_->draw(feature); }

  std::unique_ptr<PathDrawing> const drawing_;
  bool const drawsLines_;
};

class PointPainter final : public PartsPainter {
public:
  PointPainter(DrawTarget& target, MarkerSymbol const& symbol) : painter_(target, symbol) {}
  bool isVisible() const { return painter_.isVisible(); }
  double reachPx() const override {
    QRectF const box = painter_.bounds();
    return 4 + std::max({std::abs(box.left()), std::abs(box.right()), std::abs(box.top()), std::abs(box.bottom())});
  }

private:
  void add(Part const& part) override {
    if (part.kind == PartKind::Point) painter_.draw(part.xy[0], part.xy[1]);
  }
  void drawAdded(Box const&) override {}

  MarkerPainter painter_;
};

template <class PathSymbol>
std::unique_ptr<FeaturePainter> made(DrawTarget& target, PathSymbol const& symbol) {
  auto drawing = prepared(target, symbol);
  if (!drawing) return nullptr;
  return std::make_unique<PathPainter>(std::move(drawing), std::is_same_v<PathSymbol, LineSymbol>);
}

std::unique_ptr<FeaturePainter> made(DrawTarget& target, MarkerSymbol const& symbol) {
  auto painter = std::make_unique<PointPainter>(target, symbol);
  if (!painter->isVisible()) return nullptr;
  return painter;
}

}  // namespace

FeaturePainter::~FeaturePainter() = default;

std::unique_ptr<FeaturePainter> FeaturePainter::create(DrawTarget& target, Symbol const* symbol) {
  if (auto const* fill = dynamic_cast<FillSymbol const*>(symbol)) return made(target, *fill);
  if (auto const* line = dynamic_cast<LineSymbol const*>(symbol)) return made(target, *line);
  if (auto const* marker = dynamic_cast<MarkerSymbol const*>(symbol)) return made(target, *marker);
  return nullptr;
}

QVector<Symbol const*> FeaturePainter::passesOf(Symbol const* symbol) {
  auto const* line = dynamic_cast<LineSymbol const*>(symbol);
  if (!line) return {symbol};
  QVector<Symbol const*> passes;
  for (LineSymbol const* one : linesOf(*line)) passes << one;
  return passes;
}

}  // namespace SysCarto
