#include "SourceWindow.h"

#include "host/SysCarto/projection/GeometryProjector.h"
#include "host/SysCarto/projection/RectangleArea.h"

#include <ogr_geometry.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <cmath>
#include <deque>

namespace SysCarto {

namespace {

constexpr int firstDivision = 8;
constexpr int blindDivisions = 2;      // of what the projector makes nothing of, before that is believed
constexpr double leafShare = 1.0 / 8;  // of the area that is sought
constexpr int maxCells = 3000;
constexpr size_t maxRectangles = 4;
constexpr double halfTurn = 180, quarterTurn = 90;

class BoxSink final : public PartSink {
public:
  void startPolygon() override {}
  void addPart(PartKind, double const* xy, int count) override { box.add(xy, count); }
  Box box;
};

double widthOf(Box const& box) { return box.xmax - box.xmin; }
double heightOf(Box const& box) { return box.ymax - box.ymin; }
double sizeOf(Box const& box) { return std::max(widthOf(box), heightOf(box)); }

// By the way of all features, so that it is cut where they are and its edges bend as theirs do.
Box projected(Box const& cell, GeometryProjector const& projector) {
  BoxSink sink;
  projector.add(areaOf(cell), sink);
  for (double const x : {cell.xmin, (cell.xmin + cell.xmax) / 2, cell.xmax})
    for (double const y : {cell.ymin, (cell.ymin + cell.ymax) / 2, cell.ymax}) projector.add(OGRPoint(x, y), sink);
  return sink.box;
}

template <class Visit>
void divide(Box const& cell, int count, Visit const& visit) {
  double const width = widthOf(cell) / count, height = heightOf(cell) / count;
  for (int row = 0; row < count; ++row)
    for (int column = 0; column < count; ++column) {
      double const x = cell.xmin + column * width, y = cell.ymin + row * height;
      visit(Box{x, y, column + 1 == count ? cell.xmax : x + width, row + 1 == count ? cell.ymax : y + height});
    }
}

// Beside each other: those that touch in x are one, and so are the nearest of too many.
std::vector<Box> together(std::vector<Box> boxes) {
  std::sort(boxes.begin(), boxes.end(), [](Box const& a, Box const& b) { return a.xmin < b.xmin; });
  std::vector<Box> joined;
  for (Box const& box : boxes) {
    double const touching = widthOf(box) * 1e-6;
    if (!joined.empty() && box.xmin <= joined.back().xmax + touching)
      joined.back().add(box);
    else
      joined.push_back(box);
  }
  while (joined.size() > maxRectangles) {
    size_t nearest = 1;
    for (size_t i = 2; i < joined.size(); ++i)
      if (joined[i].xmin - joined[i - 1].xmax < joined[nearest].xmin - joined[nearest - 1].xmax) nearest = i;
    joined[nearest - 1].add(joined[nearest]);
    joined.erase(joined.begin() + static_cast<std::ptrdiff_t>(nearest));
  }
  return joined;
}

}  // namespace

std::optional<Box> toldExtent(OGRLayer& layer, GeometryProjector const& projector) {
  OGREnvelope told;
  if (layer.GetExtent(&told, FALSE) != OGRERR_NONE) return std::nullopt;
  Box const box{told.MinX, told.MinY, told.MaxX, told.MaxY};
  constexpr double farthest = 1e15;
  bool const isSensible = !box.isEmpty() && std::max(std::abs(box.xmin), std::abs(box.xmax)) < farthest &&
                          std::max(std::abs(box.ymin), std::abs(box.ymax)) < farthest;
  if (!isSensible) return std::nullopt;
  bool const isOnGlobe =
      !projector.isFromDegrees() || (box.ymin >= -quarterTurn * 1.01 && box.ymax <= quarterTurn * 1.01 &&
                                     box.xmin >= -3 * halfTurn && box.xmax <= 3 * halfTurn);
  return isOnGlobe ? std::optional(box) : std::nullopt;
}

Box coveredMap(Box const& source, GeometryProjector const& projector) {
  if (!projector.isProjecting()) return source;
  Box covered;
  divide(source, firstDivision, [&](Box const& cell) { covered.add(projected(cell, projector)); });
  return covered;
}

// Cells of the source are projected and divided. One is left out when the area lies farther from what it covers of the
// map than half as far as that reaches; of these there are none that a fault of a vertex could have made smaller.
std::vector<Box> sourceWindow(Box const& extent, Box const& area, GeometryProjector const& projector) {
  if (!projector.isProjecting()) return {area};
  struct Cell {
    Box box;
    int depth;
  };
  Box root = extent.grown(sizeOf(extent) * 0.01 + 1e-9);
  if (projector.isFromDegrees()) root.add(Box{-halfTurn, -quarterTurn, halfTurn, quarterTurn});
  std::deque<Cell> waiting;
  std::vector<Box> showing;
  divide(root, firstDivision, [&](Box const& cell) { waiting.push_back({cell, 0}); });
  for (int looked = 0; !waiting.empty(); ++looked) {
    Cell const cell = waiting.front();
    waiting.pop_front();
    if (looked >= maxCells) {
      showing.push_back(cell.box);
      continue;
    }
    Box const covered = projected(cell.box, projector);
    bool const isBlind = covered.isEmpty() && !projector.isFromDegrees() && cell.depth < blindDivisions;
    if (!isBlind && (covered.isEmpty() || !covered.grown(sizeOf(covered) / 2).meets(area))) continue;
    if (!isBlind && sizeOf(covered) <= sizeOf(area) * leafShare)
      showing.push_back(cell.box);
    else
      divide(cell.box, 2, [&](Box const& part) { waiting.push_back({part, cell.depth + 1}); });
  }
  std::vector<Box> rectangles = together(std::move(showing));
  // Rings around the globe, and what steps across the antimeridian without a cut, are read otherwise than they are
  // written: they may show where their coordinates are not. All of them cross the meridian of Greenwich as written.
  if (projector.isFromDegrees() && !rectangles.empty()) rectangles.push_back({-1e-9, root.ymin, 1e-9, root.ymax});
  return rectangles;
}

}  // namespace SysCarto
