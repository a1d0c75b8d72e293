#include "Snapper.h"

#include "SelectionHandles.h"

#include <algorithm>
#include <cmath>

using SysCarto::PageAids;
using SysCarto::PageLayout;

namespace {

constexpr double sameCm = 1e-6;

}  // namespace

void Snapper::Axis::addBox(Span const& along, Span const& across) {
  for (double const at : {along.low, along.middle(), along.high}) addLine(at, across);
  boxes << qMakePair(along, across);
}

Snapper::Snapper(PageLayout const& layout, QSet<SysCarto::ElementHandle> const& moving, PageAids const& aids) {
  for (auto const& element : workplace(layout).GetElements()) {
    if (moving.contains(element->GetHandle()) || !element->IsVisible()) continue;
    auto const box = element->GetEnvelope();
    Span const along{box->GetXMin(), box->GetXMax()}, across{box->GetYMin(), box->GetYMax()};
    x_.addBox(along, across);
    y_.addBox(across, along);
  }
  if (SysCarto::Page const* const page = layout.GetPage()) {
    double width, height;
    page->QuerySize(width, height);
    Span const wide{0, width}, high{0, height};
    for (double const x : {0.0, width / 2, width, aids.left, width - aids.right}) x_.addLine(x, high);
    for (double const y : {0.0, height / 2, height, aids.bottom, height - aids.top}) y_.addLine(y, wide);
    for (double const x : aids.verticalGuides) x_.addLine(x, high);
    for (double const y : aids.horizontalGuides) y_.addLine(y, wide);
    x_.grid = y_.grid = aids.grid;
  }
  for (Axis* const axis : {&x_, &y_}) std::sort(axis->targets.begin(), axis->targets.end());
}

// How far the nearest line is from any of the places. The grid gives way to whatever else is near.
std::optional<double> Snapper::nearest(Axis const& axis, QVector<double> const& places, double reach) {
  std::optional<double> best;
  auto const consider = [&](double distance) {
    if (std::abs(distance) <= reach && (!best || std::abs(distance) < std::abs(*best))) best = distance;
  };
  for (double const place : places) {
    auto const after = std::lower_bound(axis.targets.begin(), axis.targets.end(), Target{place, 0, 0});
    if (after != axis.targets.end()) consider(after->at - place);
    if (after != axis.targets.begin()) consider((after - 1)->at - place);
  }
  if (best || axis.grid <= 0) return best;
  for (double const place : places) consider(std::round(place / axis.grid) * axis.grid - place);
  return best;
}

// Between its neighbours, or as far from one as that is from the next.
std::optional<Snapper::Gap> Snapper::nearestGap(Axis const& axis, Span const& box, Span const& across, double reach) {
  auto const neighbour = [&](double from, bool isBefore) {
    std::optional<Span> found;
    for (auto const& [along, other] : axis.boxes) {
      if (!other.meets(across)) continue;
      if (isBefore && along.high <= from + reach && (!found || along.high > found->high)) found = along;
      if (!isBefore && along.low >= from - reach && (!found || along.low < found->low)) found = along;
    }
    return found;
  };
  std::optional<Gap> best;
  auto const consider = [&](double low, QVector<Span> const& gaps) {
    double const distance = low - box.low;
    bool const isGap =
        std::all_of(gaps.begin(), gaps.end(), [](Span const& gap) { return gap.high - gap.low > sameCm; });
    if (isGap && std::abs(distance) <= reach && (!best || std::abs(distance) < std::abs(best->distance)))
      best = Gap{distance, gaps};
  };
  double const width = box.high - box.low;
  auto const before = neighbour(box.low, true), after = neighbour(box.high, false);
  if (before && after) {
    double const gap = (after->low - before->high - width) / 2;
    consider(before->high + gap, {{before->high, before->high + gap}, {after->low - gap, after->low}});
  }
  if (auto const next = before ? neighbour(before->low - reach, true) : std::nullopt) {
    double const gap = before->low - next->high;
    consider(before->high + gap, {{next->high, before->low}, {before->high, before->high + gap}});
  }
  if (auto const next = after ? neighbour(after->high + reach, false) : std::nullopt) {
    double const gap = next->low - after->high;
    consider(after->low - gap - width, {{after->high, next->low}, {after->low - gap, after->low}});
  }
  return best;
}

// Through all on which one of the places lies, from end to end.
void Snapper::addLines(Axis const& axis, QVector<double> const& places, Span const& across, Qt::Orientation orientation,
                       QVector<QLineF>& lines) {
  for (double const place : places) {
    auto const first = std::lower_bound(axis.targets.begin(), axis.targets.end(), Target{place - sameCm, 0, 0});
    if (first == axis.targets.end() || first->at > place + sameCm) continue;
    Span reach = across;
    for (auto target = first; target != axis.targets.end() && target->at <= place + sameCm; ++target)
      reach = {std::min(reach.low, target->from), std::max(reach.high, target->to)};
    lines << (orientation == Qt::Vertical ? QLineF(place, reach.low, place, reach.high)
                                          : QLineF(reach.low, place, reach.high, place));
  }
}

Snapper::Result Snapper::ofBox(QRectF const& box, double reachCm) const {
  Span const wide{box.left(), box.right()}, high{box.top(), box.bottom()};
  auto const places = [](Span const& span, double by) {
    return QVector<double>{span.low + by, span.middle() + by, span.high + by};
  };
  auto const gapX = nearestGap(x_, wide, high, reachCm), gapY = nearestGap(y_, high, wide, reachCm);
  auto const lineX = nearest(x_, places(wide, 0), reachCm), lineY = nearest(y_, places(high, 0), reachCm);
  auto const isGap = [](auto const& gap, auto const& line) {
    return gap && (!line || std::abs(gap->distance) < std::abs(*line));
  };
  Result result;
  result.by = {isGap(gapX, lineX) ? gapX->distance : lineX.value_or(0),
               isGap(gapY, lineY) ? gapY->distance : lineY.value_or(0)};
  Span const nowWide{wide.low + result.by.x(), wide.high + result.by.x()};
  Span const nowHigh{high.low + result.by.y(), high.high + result.by.y()};
  if (lineX) addLines(x_, places(nowWide, 0), nowHigh, Qt::Vertical, result.lines);
  if (lineY) addLines(y_, places(nowHigh, 0), nowWide, Qt::Horizontal, result.lines);
  if (isGap(gapX, lineX))
    for (Span const& gap : gapX->gaps) result.lines << QLineF(gap.low, nowHigh.middle(), gap.high, nowHigh.middle());
  if (isGap(gapY, lineY))
    for (Span const& gap : gapY->gaps) result.lines << QLineF(nowWide.middle(), gap.low, nowWide.middle(), gap.high);
  return result;
}

Snapper::Result Snapper::ofPoint(QPointF const& point, double reachCm, bool inX, bool inY) const {
  auto const byX = inX ? nearest(x_, {point.x()}, reachCm) : std::nullopt;
  auto const byY = inY ? nearest(y_, {point.y()}, reachCm) : std::nullopt;
  Result result;
  result.by = {byX.value_or(0), byY.value_or(0)};
  QPointF const now = point + result.by;
  if (byX) addLines(x_, {now.x()}, {now.y(), now.y()}, Qt::Vertical, result.lines);
  if (byY) addLines(y_, {now.y()}, {now.x(), now.x()}, Qt::Horizontal, result.lines);
  return result;
}
