#include "LinePainter.h"

#include "host/SysDisplay/DevicePath.h"

#include <SysDisplay/SimpleLineSymbol.h>

#include <algorithm>
#include <cmath>

namespace SysDisplay {

namespace {

// Vertices nearer to each other than this can't be told apart in a stroke.
constexpr double thinPx = 0.25;

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

DashPattern dashesOf(LineSymbol const& symbol, double widthPx) {
  DashPattern pattern = patternOf(styleOf(symbol));
  double const unit = std::max(widthPx, 0.25);
  // Caps lengthen a dash by one width. A dot of no length would have no direction.
  double const caps = symbol.GetCapStyle() == LineCapStyle::Butt ? 0.0 : 1.0;
  for (size_t i = 0; i < pattern.size(); ++i)
    pattern[i] = unit * (i % 2 ? pattern[i] + caps : std::max(pattern[i] - caps, 0.01));
  return pattern;
}

// Wider lines than this are a mistake, and would leave the range of the rasteriser.
constexpr double widestPx = 20000.0;

double widthPx(DrawTarget const& target, LineSymbol const& symbol) {
  return std::min(symbol.GetWidth() * target.pixelsPerPoint(), widestPx);
}

bool repeatsStart(std::vector<QPointF> const& line, bool closed) {
  return closed && line.size() > 1 && line.front() == line.back();
}

}  // namespace

LinePainter::LinePainter(DrawTarget& target, LineSymbol const& symbol)
    : target_(target),
      color_(symbol.GetColor()),
      offsetPx_(symbol.GetOffset() * target.pixelsPerPoint()),
      dashes_(dashesOf(symbol, widthPx(target, symbol))),
      stroker_(widthPx(target, symbol), symbol.GetCapStyle(), symbol.GetJoinStyle(), symbol.GetMiterLimit()) {
  visible_ = symbol.GetWidth() > 0 && color_.alpha() > 0 && styleOf(symbol) != SimpleLineStyle::Null;
  double const reach = std::min(stroker_.reachPx(), maxReachPx);
  area_ = target.area().adjusted(-reach, -reach, reach, reach);
}

double LinePainter::reachPx() const { return stroker_.reachPx() + std::abs(offsetPx_) * 2; }

void LinePainter::addLine(WorldRun const& run) { add(run, false); }
void LinePainter::addRing(WorldRun const& run) { add(run, true); }

void LinePainter::add(WorldRun const& run, bool closed) {
  if (!visible_) return;
  // Where a dash begins, and how far a line moved to its side reaches, depends on what comes before.
  bool const needsAll = !dashes_.empty() || offsetPx_ != 0;
  toDevicePoints(target_.toDevice(), needsAll ? WorldRun{run.xy, run.count} : run, area_, thinPx, line_);
  addDevice(line_, closed);
}

void LinePainter::addDevice(std::vector<QPointF> const& points, bool closed) {
  if (!visible_ || points.empty()) return;
  if (offsetPx_ == 0 && !repeatsStart(points, closed)) return stroke(points, closed);
  std::vector<QPointF> changed = points;
  if (repeatsStart(changed, closed)) changed.pop_back();
  if (offsetPx_ != 0) changed = offsetLine(changed, closed, offsetPx_);
  if (repeatsStart(changed, closed)) changed.pop_back();
  stroke(changed, closed);
}

void LinePainter::stroke(std::vector<QPointF> const& line, bool closed) {
  pieces_.clear();
  bool wholeRing = false;
  if (dashes_.empty() || line.size() < 2)
    wholeRing = splitLine(line, closed, area_, target_.anchor(), pieces_);
  else
    dashLine(line, closed, dashes_, area_, pieces_);
  for (int i = 0; i < pieces_.count(); ++i) {
    if (wholeRing)
      stroker_.strokeClosed(pieces_.run(i), pieces_.size(i), outline_);
    else
      stroker_.strokeOpen(pieces_.run(i), pieces_.size(i), outline_);
  }
}

void LinePainter::draw() {
  target_.fill(outline_, color_, Qt::WindingFill);
  outline_.clear();
}

}  // namespace SysDisplay
