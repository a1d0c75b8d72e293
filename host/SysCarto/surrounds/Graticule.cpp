#include <SysCarto/Graticule.h>

#include "GraticuleLabels.h"
#include "GraticuleLines.h"
#include "GridTexts.h"
#include "MeasuredLines.h"
#include "Pieces.h"
#include "SurroundSettings.h"

#include "host/SysCarto/elements/Placement.h"
#include "host/SysDisplay/DisplayTransformationHost.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapFrameElement.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::DisplayTransformationHost;
using SysDisplay::LineSymbol;
using SysDisplay::TextFormat;
using SysDisplay::TextSymbol;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

// What people count in: degrees, minutes, seconds.
// clang-format off
constexpr double intervals[] = {
    1 / 3600.0, 2 / 3600.0, 5 / 3600.0, 10 / 3600.0, 15 / 3600.0, 30 / 3600.0,
    1 / 60.0,   2 / 60.0,   5 / 60.0,   10 / 60.0,   15 / 60.0,   30 / 60.0,
    1, 2, 5, 10, 15, 30, 45, 90};
// clang-format on

constexpr double minBetweenCm = 2;  // two lines
constexpr double maxLines = 1000;
constexpr double labelGapPt = 3;

double intervalFor(double cmPerDegree) {
  auto const* const found = std::find_if(std::begin(intervals), std::end(intervals), [cmPerDegree](double interval) {
    return interval * cmPerDegree >= minBetweenCm;
  });
  return found == std::end(intervals) ? intervals[std::size(intervals) - 1] : *found;
}

// 1, 2 or 5 times a power of ten.
double spacingFor(double cmPerUnit) {
  double const least = minBetweenCm / cmPerUnit, power = std::pow(10, std::floor(std::log10(least)));
  for (double const factor : {1.0, 2.0, 5.0})
    if (factor * power >= least * (1 - 1e-9)) return factor * power;
  return 10 * power;
}

_ptr_t<LineSymbol> usualLine() {
  auto const symbol = make<SysDisplay::SimpleLineSymbol>();
  symbol->SetColor(QColor(0x6b, 0x7b, 0x88));
  symbol->SetWidth(0.3);
  symbol->SetCapStyle(SysDisplay::LineCapStyle::Butt);
  return symbol;
}

_ptr_t<TextSymbol> usualLabel() {
  TextFormat format;
  format.size = 6.5;
  format.color = QColor(0x3b, 0x3a, 0x44);
  return make<TextSymbol>(format);
}

}  // namespace

IMapGrid::~IMapGrid() = default;

struct Graticule::Private {
  GraticuleSettings settings;

  // What was worked out for a map and a rectangle, since a page is drawn in many tiles. Clones share it.
  struct Picture {
    QString system;
    MapPlace place;
    QList<_ptr_t<Element>> elements;
  };
  mutable std::shared_ptr<Picture const> picture;
  mutable QString system;
  mutable std::shared_ptr<GridLines const> lines;  // of that system; null until they are asked for

  _ptr_t<TextSymbol> labelSymbol() const { return settings.label ? settings.label : usualLabel(); }
  bool isMeasured() const { return settings.system == GridSystem::Projected; }
  double interval() const { return isMeasured() ? settings.spacing : settings.interval; }
  GridLines const& linesOf(QString const& wanted) const {
    if (lines && system == wanted) return *lines;
    if (isMeasured())
      lines = std::make_shared<MeasuredLines>();
    else
      lines = std::make_shared<GraticuleLines>(wanted);
    system = wanted;
    return *lines;
  }
  bool isTooFine(GridLines const& lines, Envelope const& extent) const {
    return interval() > 0 && lines.count(extent, interval()) > maxLines;
  }
  GridStep stepOn(GridLines const& lines, MapPlace const& place) const;
  QString textOf(GridLine const& line, QString const& unit) const;
  QList<_ptr_t<Element>> const& elementsFor(Map const& map, Envelope const& rectangle) const;
};

namespace {

bool isSame(MapPlace const& a, MapPlace const& b) {
  return haveSameCorners(a.rectangle, b.rectangle) && haveSameCorners(a.extent, b.extent) && a.turn == b.turn;
}

MapPlace placeOf(Map const& map, Envelope const& rectangle) {
  return {rectangle, *map.GetExtent(), DisplayTransformationHost::turn(*map.GetDisplayTransformation())};
}

}  // namespace

GridStep Graticule::Private::stepOn(GridLines const& lines, MapPlace const& place) const {
  Envelope const extent = place.covered();
  if (interval() > 0 && !isTooFine(lines, extent)) return {interval(), interval()};
  GridStep const size = lines.unitSize(extent);
  double const cmPerUnit = place.rectangle.GetWidth() / place.extent.GetWidth();
  auto const choose = isMeasured() ? spacingFor : intervalFor;
  return {choose(size.longitude * cmPerUnit), choose(size.latitude * cmPerUnit)};
}

QString Graticule::Private::textOf(GridLine const& line, QString const& unit) const {
  if (isMeasured()) return coordinateText(line.value, line.isMeridian, unit, settings.signs);
  return degreesText(line.value, line.isMeridian, settings.format, settings.signs);
}

QList<_ptr_t<Element>> const& Graticule::Private::elementsFor(Map const& map, Envelope const& rectangle) const {
  GridLines const& grid = linesOf(map.GetCoordinateSystem());
  MapPlace const place = placeOf(map, rectangle);
  if (picture && picture->system == system && isSame(picture->place, place)) return picture->elements;
  auto made = std::make_shared<Picture>(Picture{system, place, {}});
  _ptr_t<LineSymbol> const line = settings.line ? settings.line : usualLine();
  auto const draw = [&](QVector<QVector<QPointF>> const& parts) {
    for (QVector<QPointF> const& part : parts) made->elements << linePiece(part, line);
  };
  Envelope const extent = place.covered();
  GridStep const step = stepOn(grid, place);
  double const sizeCm = settings.sizePt * SysDisplay::cmPerPoint;
  QString const unit = isMeasured() ? unitOf(system) : QString();
  GraticuleLabels labels(place, labelSymbol(), labelGapPt, settings.labelSides);
  for (GridLine const& one : grid.lines(extent, step)) {
    auto const parts = labels.placed(one);
    if (settings.marks == GridMarks::Lines) draw(parts);
    if (settings.marks == GridMarks::Ticks) draw(labels.ticks(parts, sizeCm));
    if (settings.labelled) labels.label(one, parts, textOf(one, unit));
  }
  if (settings.marks == GridMarks::Crosses)
    for (GridCrossing const& one : grid.crossings(extent, step)) draw(labels.cross(one, sizeCm));
  made->elements += labels.elements();
  picture = made;
  return picture->elements;
}

Graticule::Graticule() : d(std::make_unique<Private>()) {}
Graticule::Graticule(Graticule const& other) : IMapGrid(other), d(std::make_unique<Private>(*other.d)) {}
Graticule::~Graticule() = default;

QString Graticule::GetName() const { return d->settings.name; }
void Graticule::SetName(QString const& name) { d->settings.name = name; }

void Graticule::Draw(QPainter& painter, _ptr_t<SysUI::TrackerCancel> const& cancel,
                     _ptr_t<DisplayTransformation> const& transformation, _ptr_t<MapFrameElement> const& frame) {
  if (!frame || !transformation) return;
  for (auto const& element : d->elementsFor(*frame->GetMap(), *frame->GetEnvelope())) {
    if (cancel && cancel->IsCanced()) return;
    element->Draw(painter, transformation, cancel);
  }
}

_ptr_t<SysGeometry::Geometry> Graticule::GetBoundary(_ptr_t<DisplayTransformation> const& transformation,
                                                     MapFrameElement const& frame) const {
  auto const area = make<Envelope>();
  for (auto const& element : d->elementsFor(*frame.GetMap(), *frame.GetEnvelope()))
    include(*area, element->GetBoundary(transformation));
  return area;
}

_ptr_t<IMapGrid> Graticule::Clone() const { return make<Graticule>(*this); }

GraticuleSettings GraticuleSettings::of(Graticule const& graticule) { return graticule.d->settings; }

void GraticuleSettings::applyTo(Graticule& graticule) const {
  graticule.d->settings = *this;
  graticule.d->picture = nullptr;
  graticule.d->lines = nullptr;
}

QString GraticuleSettings::problemOf(Graticule const& graticule, MapFrameElement const& frame) {
  Graticule::Private& d = *graticule.d;
  Map const& map = *frame.GetMap();
  Envelope const extent = placeOf(map, *frame.GetEnvelope()).covered();
  if (!d.isTooFine(d.linesOf(map.GetCoordinateSystem()), extent)) return QString();
  double const count = d.lines->count(extent, d.interval());
  double const least = std::ceil(count * d.interval() / maxLines * 1000) / 1000;
  QString const sentence =
      d.isMeasured()
          ? QCoreApplication::translate(
                "Graticule",
                "the grid “%1” of the map “%2” has a spacing of %3 map units, which makes %4 lines; at most %5 are "
                "drawn, so a spacing is chosen for it; enter one of %6 map units or more")
          : QCoreApplication::translate(
                "Graticule",
                "the graticule “%1” of the map “%2” has an interval of %3 degrees, which makes %4 "
                "lines; at most %5 are drawn, so an interval is chosen for it; enter one of %6 "
                "degrees or more");
  return sentence.arg(d.settings.name, map.GetName(), grouped(d.interval()), grouped(std::round(count)),
                      grouped(maxLines), grouped(least));
}

}  // namespace SysCarto
