#include "FeaturePainter.h"

#include "host/SysDisplay/FillPainter.h"
#include "host/SysDisplay/MarkerPainter.h"

#include <algorithm>
#include <cmath>

namespace SysCarto {

using namespace SysDisplay;

namespace {

class PolygonPainter final : public FeaturePainter {
public:
  PolygonPainter(DrawTarget& target, FillSymbol const& symbol) : painter_(target, symbol) {}
  bool isVisible() const { return painter_.isVisible(); }
  double reachPx() const override { return painter_.reachPx(); }

private:
  void add(Part const& part) override {
    switch (part.kind) {
      case PartKind::Ring: return painter_.addRing(part.run());
      case PartKind::FilledRing: return painter_.addRing(part.run(), false);
      case PartKind::Outline: return painter_.addOutline(part.run());
      case PartKind::Line:
      case PartKind::Point: return;
    }
  }
  void draw() override { painter_.draw(); }

  FillPainter painter_;
};

class LineFeaturePainter final : public FeaturePainter {
public:
  LineFeaturePainter(DrawTarget& target, LineSymbol const& symbol) : painter_(target, symbol) {}
  bool isVisible() const { return painter_.isVisible(); }
  double reachPx() const override { return painter_.reachPx(); }

private:
  void add(Part const& part) override {
    if (part.kind == PartKind::Ring) painter_.addRing(part.run());
    if (part.kind == PartKind::Line || part.kind == PartKind::Outline) painter_.addLine(part.run());
  }
  void draw() override { painter_.draw(); }

  LinePainter painter_;
};

class PointPainter final : public FeaturePainter {
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
  void draw() override {}

  MarkerPainter painter_;
};

template <class Painter, class Symbol>
std::unique_ptr<FeaturePainter> made(DrawTarget& target, Symbol const& symbol) {
  auto painter = std::make_unique<Painter>(target, symbol);
  if (!painter->isVisible()) return nullptr;
  return painter;
}

}  // namespace

FeaturePainter::~FeaturePainter() = default;

void FeaturePainter::draw(ThinnedFeatures& features, int feature, Box const& area) {
  for (Part const& part : features.parts(feature))
    if (part.box.meets(area)) add(part);
  draw();
}

std::unique_ptr<FeaturePainter> FeaturePainter::create(DrawTarget& target, Symbol const* symbol) {
  if (auto const* fill = dynamic_cast<FillSymbol const*>(symbol)) return made<PolygonPainter>(target, *fill);
  if (auto const* line = dynamic_cast<LineSymbol const*>(symbol)) return made<LineFeaturePainter>(target, *line);
  if (auto const* marker = dynamic_cast<MarkerSymbol const*>(symbol)) return made<PointPainter>(target, *marker);
  return nullptr;
}

}  // namespace SysCarto
