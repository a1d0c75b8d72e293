#include "host/SysCarto/labels/AreaSpine.h"
#include "host/SysCarto/labels/LabelPlacer.h"

#include <QStringList>

#include <algorithm>

namespace SysCarto {

using SysGeometry::anyEdge;

namespace {

constexpr double finePt = 0.5;
constexpr int rows = 15;
constexpr int maxLines = 3;

bool boxIsInside(Rings const& rings, QPointF const& centre, double width, double height) {
  Box const box{centre.x() - width / 2, centre.y() - height / 2, centre.x() + width / 2, centre.y() + height / 2};
  bool const isCrossed = anyEdge(
      rings, [&](QPointF const& a, QPointF const& b) { return !SysGeometry::clippedSegment(a, b, box).isEmpty(); });
  return !isCrossed && SysGeometry::contains(rings, centre.x(), centre.y());
}

// Places in rows across the area, each as near to `wanted` as the row allows.
std::vector<QPointF> placesInRows(Rings const& rings, Box const& box, QPointF const& wanted, double width,
                                  double height) {
  std::vector<QPointF> places;
  double const room = box.ymax - box.ymin - height;
  for (int row = 0; row < rows; ++row) {
    double const y = box.ymin + height / 2 + room * row / (rows - 1);
    std::vector<double> const xs = crossings(rings, y);
    for (size_t i = 0; i + 1 < xs.size(); i += 2) {
      double const slack = xs[i + 1] - xs[i] - width;
      if (slack < 0) continue;
      double const low = xs[i] + width / 2 + slack / 4, high = xs[i + 1] - width / 2 - slack / 4;
      places.emplace_back(std::clamp(wanted.x(), low, high), y);
    }
  }
  return places;
}

}  // namespace

std::vector<QPointF> placesInside(Rings const& rings, double width, double height) {
  std::vector<QPointF> places;
  Box const box = SysGeometry::boxOf(rings);
  if (box.isEmpty() || box.xmax - box.xmin < width || box.ymax - box.ymin < height) return places;
  QPointF const best = SysGeometry::poleOfInaccessibility(rings, finePt).place;
  places = placesInRows(rings, box, best, width, height);
  std::stable_sort(places.begin(), places.end(), [&](QPointF const& a, QPointF const& b) {
    QPointF const p = a - best, q = b - best;
    return QPointF::dotProduct(p, p) < QPointF::dotProduct(q, q);
  });
  places.insert(places.begin(), best);
  places.erase(std::remove_if(places.begin(), places.end(),
                              [&](QPointF const& place) { return !boxIsInside(rings, place, width, height); }),
               places.end());
  return places;
}

QStringList wrapped(QString const& text) {
  QStringList const words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  QStringList result{text};
  for (int lines = 2; lines <= maxLines && lines <= words.size(); ++lines) {
    // The smallest width, in letters, at which the words go into that many lines.
    for (int width = text.size() / lines; width <= text.size(); ++width) {
      QStringList broken{words[0]};
      for (int i = 1; i < words.size(); ++i) {
        if (broken.last().size() + 1 + words[i].size() <= width)
          broken.last() += QLatin1Char(' ') + words[i];
        else
          broken << words[i];
      }
      if (broken.size() > lines) continue;
      QString const joined = broken.join(QLatin1Char('\n'));
      if (!result.contains(joined)) result << joined;
      break;
    }
  }
  return result;
}

}  // namespace SysCarto
