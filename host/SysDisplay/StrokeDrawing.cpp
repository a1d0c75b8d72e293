#include "StrokeDrawing.h"

#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysDisplay/GeometryParts.h"

#include <SysDisplay/SimpleLineSymbol.h>

#include <algorithm>
#include <cmath>

namespace SysDisplay {

using SysGeometry::Box;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;

namespace {

// Vertices nearer to each other than this can't be told apart in a stroke.
constexpr double nearestPx = 0.25;

// Nothing that a page needs reaches farther, and the outline has to stay within what the rasteriser can take.
constexpr double maxReachPx = 12000.0;

SimpleLineStyle styleOf(LineSymbol const& symbol) {
  auto const* simple = dynamic_cast<SimpleLineSymbol const*>(&symbol);
  return simple ? simple->GetStyle() : SimpleLineStyle::Solid;
}

// Dashes and gaps in line widths, as they look with their caps.
std::vector<double> patternOf(SimpleLineStyle style) {
  constexpr double dash = 4, dot = 1, gap = 2;
  switch (style) {
    case SimpleLineStyle::Dash: return {dash, gap};
    case SimpleLineStyle::Dot: return {dot, gap};
    case SimpleLineStyle::DashDot: return {dash, gap, dot, gap};
    case SimpleLineStyle::DashDotDot: return {dash, gap, dot, gap, dot, gap};
    case SimpleLineStyle::Null:
    case SimpleLineStyle::Solid: break;
  }
  return {};
}

Dashes dashesOf(LineSymbol const& symbol, double widthPx) {
  std::vector<double> pattern = patternOf(styleOf(symbol));
  double const unit = std::max(widthPx, 0.25);
  // Caps lengthen a dash by one width. A dot of no length would have no direction.
  double const caps = symbol.GetCapStyle() == LineCapStyle::Butt ? 0.0 : 1.0;
  for (size_t i = 0; i < pattern.size(); ++i)
    pattern[i] = unit * (i % 2 ? pattern[i] + caps : std::max(pattern[i] - caps, 0.01));
  return {pattern, 0};
}

// Wider lines than this are a mistake, and would leave the range of the rasteriser.
constexpr double widestPx = 20000.0;

double widthPx(DrawTarget const& target, LineSymbol const& symbol) {
  return std::min(symbol.GetWidth() * target.pixelsPerPoint(), widestPx);
}

bool repeatsStart(std::vector<QPointF> const& line, bool closed) {
  return closed && line.size() > 1 && line.front() == line.back();
}

class StrokeDrawing final : public PathDrawing {
public:
  StrokeDrawing(DrawTarget& target, LineSymbol const& symbol, Dashes dashes)
      : target_(target),
        offsetPx_(symbol.GetOffset() * target.pixelsPerPoint()),
        dashes_(std::move(dashes)),
        stroke_({symbol.GetColor(),
                 widthPx(target, symbol),
                 symbol.GetCapStyle(),
                 symbol.GetJoinStyle(),
                 symbol.GetMiterLimit(),
                 {}}),
        stroker_(widthPx(target, symbol), symbol.GetCapStyle(), symbol.GetJoinStyle(), symbol.GetMiterLimit()) {
    double const reach = std::min(stroker_.reachPx(), maxReachPx);
    area_ = target.area().adjusted(-reach, -reach, reach, reach);
    if (target.canvas()) thinPx_ = target.canvas()->thinPx();
  }

  double reachPx() const override { return stroker_.reachPx() + std::abs(offsetPx_) * 2; }

  void addLine(WorldRun const& run) override { add(run, false); }
  void addRing(WorldRun const& run, bool outlined) override {
    if (outlined) add(run, true);
  }

  void draw(Box const&) override {
    if (auto* const canvas = target_.canvas()) {
      drawOn(*canvas, rings_, true, {});
      drawOn(*canvas, lines_, false, {});
      drawOn(*canvas, dashed_, false, dashes_);
      return;
    }
    target_.fill(outline_, stroke_.color, Qt::WindingFill);
    outline_.clear();
  }

private:
  void drawOn(VectorCanvas& canvas, PointRuns& lines, bool closed, Dashes const& dashes) {
    Stroke stroke = stroke_;
    stroke.dashes = dashes;
    if (!lines.isEmpty()) canvas.stroke(lines, closed, stroke);
    lines.clear();
  }

  void add(WorldRun const& run, bool closed) {
    // Where a dash begins, and how far a line moved to its side reaches, depends on what comes before.
    if (DrawingBudget::isSpent()) return;
    bool const needsAll = !dashes_.pattern.empty() || offsetPx_ != 0;
    toDevicePoints(target_.toDevice(), needsAll ? WorldRun{run.xy, run.count} : run, area_, thinPx_, line_);
    if (!line_.empty()) stroke(courseOf(line_, closed, offsetPx_, moved_), closed);
  }

  void stroke(std::vector<QPointF> const& line, bool closed) {
    pieces_.clear();
    bool wholeRing = false;
    if (dashes_.pattern.empty() || line.size() < 2)
      wholeRing = splitLine(line, closed, area_, target_.anchor(), pieces_);
    else if (target_.canvas() && lies(line))
      return addDashed(line, closed);
    else
      dashLine(line, closed, dashes_, area_, pieces_);
    DrawingBudget::spendOnVertices(static_cast<double>(pieces_.points.size()));
    if (target_.canvas()) return (wholeRing ? rings_ : lines_).append(pieces_);
    for (int i = 0; i < pieces_.count() && !DrawingBudget::isSpent(); ++i) {
      size_t const before = outline_.points.size();
      if (wholeRing)
        stroker_.strokeClosed(pieces_.run(i), pieces_.size(i), outline_);
      else
        stroker_.strokeOpen(pieces_.run(i), pieces_.size(i), outline_);
      DrawingBudget::spendOnVertices(static_cast<double>(outline_.points.size() - before));
    }
  }

  // Whether nothing of a line is beyond what can be seen.
  bool lies(std::vector<QPointF> const& line) const {
    return std::all_of(line.begin(), line.end(), [&](QPointF const& point) { return area_.contains(point); });
  }

  void addDashed(std::vector<QPointF> const& line, bool closed) {
    for (QPointF const& point : line) dashed_.add(point);
    if (closed) dashed_.add(line.front());
    dashed_.endRun();
  }

  DrawTarget& target_;
  double const offsetPx_;
  Dashes const dashes_;
  Stroke const stroke_;
  Stroker stroker_;
  QRectF area_;
  double thinPx_ = nearestPx;
  std::vector<QPointF> line_, moved_;
  PointRuns pieces_;
  PointRuns outline_;        // in pixels
  PointRuns rings_, lines_;  // on a canvas
  PointRuns dashed_;         // on a canvas that dashes them itself
};

}  // namespace

std::vector<QPointF> const& courseOf(std::vector<QPointF> const& points, bool closed, double offsetPx,
                                     std::vector<QPointF>& moved) {
  if (offsetPx == 0 && !repeatsStart(points, closed)) return points;
  moved = points;
  if (repeatsStart(moved, closed)) moved.pop_back();
  if (offsetPx != 0) moved = offsetLine(moved, closed, offsetPx);
  if (repeatsStart(moved, closed)) moved.pop_back();
  return moved;
}

std::unique_ptr<PathDrawing> prepareStroke(DrawTarget& target, LineSymbol const& symbol, Dashes const& dashes) {
  if (symbol.GetWidth() <= 0 || symbol.GetColor().alpha() == 0) return nullptr;
  return std::make_unique<StrokeDrawing>(target, symbol, dashes);
}

std::unique_ptr<PathDrawing> prepareSimpleLine(DrawTarget& target, LineSymbol const& symbol) {
  if (styleOf(symbol) == SimpleLineStyle::Null) return nullptr;
  return prepareStroke(target, symbol, dashesOf(symbol, widthPx(target, symbol)));
}

_ptr_t<Envelope> strokeBoundary(LineSymbol const& symbol, DisplayTransformation const& transformation,
                                Geometry const* geometry) {
  if (!geometry || symbol.GetWidth() <= 0) return nullptr;
  double const pixelsPerPoint = transformation.PixelsPerPoint();
  Stroker const stroker(symbol.GetWidth() * pixelsPerPoint, symbol.GetCapStyle(), symbol.GetJoinStyle(),
                        symbol.GetMiterLimit());
  double const offset = std::abs(symbol.GetOffset()) * pixelsPerPoint;
  QTransform const toDevice = transformation.ToDevice();
  std::optional<QRectF> covered;
  std::vector<QPointF> line;
  visitParts(geometry, [&](GeometryPart const& part) {
    line.clear();
    for (int i = 0; i < part.run.count; ++i) {
      QPointF const point = toDevice.map(QPointF(part.run.xy[2 * i], part.run.xy[2 * i + 1]));
      if (line.empty() || line.back() != point) line.push_back(point);
    }
    if (part.closed && line.size() > 1 && line.front() == line.back()) line.pop_back();
    QRectF const bounds = stroker.bounds(line.data(), static_cast<int>(line.size()), part.closed)
                              .adjusted(-offset, -offset, offset, offset);
    covered = covered ? covered->united(bounds) : bounds;
  });
  return toWorld(transformation, covered);
}

}  // namespace SysDisplay
