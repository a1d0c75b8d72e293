#include "ElementSettings.h"

#include "ElementFields.h"

#include "host/SysCarto/document/SurroundFields.h"
#include "host/SysCarto/elements/ElementLimits.h"
#include "host/SysCarto/elements/EmbeddedPicture.h"
#include "host/SysCarto/surrounds/SurroundSettings.h"
#include "host/SysDisplay/SymbolFields.h"

#include <QDir>

namespace SysCarto {

using SysDisplay::listOptionalSymbol;
using SysGeometry::Envelope;
using SysGeometry::Point;
using SysGeometry::Polygon;
using SysGeometry::Polyline;
using SysUtility::_ptr_t;
using SysUtility::Fields;
using SysUtility::make;
using SysUtility::NumbersKind;
using SysUtility::ptr_cast;
using SysUtility::Range;
using SysUtility::TextKind;
using SysUtility::Unit;

namespace {

constexpr Range onPage{-farthestOnPageCm, farthestOnPageCm, Unit::Centimetre};
constexpr int maxMembers = 100000, maxRings = 100000, maxGrids = 100;

// clang-format off
constexpr SysUtility::Choice arrowHeads[] = {
    {ArrowHead::None,     "none",     QT_TRANSLATE_NOOP("Fields", "None")},
    {ArrowHead::Triangle, "triangle", QT_TRANSLATE_NOOP("Fields", "Arrow")},
    {ArrowHead::Barbed,   "barbed",   QT_TRANSLATE_NOOP("Fields", "Barbed arrow")},
    {ArrowHead::Open,     "open",     QT_TRANSLATE_NOOP("Fields", "Open arrow")},
    {ArrowHead::Dot,      "dot",      QT_TRANSLATE_NOOP("Fields", "Dot")},
    {ArrowHead::Bar,      "bar",      QT_TRANSLATE_NOOP("Fields", "Bar")},
};
// clang-format on

Range anywhere(ElementScope const& scope) {
  return {-farthestGraphic, farthestGraphic, scope.onMap ? Unit::MapUnit : Unit::Centimetre};
}

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ElementSettings)
};

void listPoints(Fields& fields, QVector<QPointF>& points, int fewest, ElementScope const& scope) {
  QVector<double> flat;
  for (QPointF const& point : qAsConst(points)) flat << point.x() << point.y();
  fields.coordinates({"points", QT_TRANSLATE_NOOP("Fields", "Points"),
                      QT_TRANSLATE_NOOP("Fields", "The vertices: x and y of the first, of the second, and so on.")},
                     flat, fewest, anywhere(scope));
  if (!fields.ok()) return;
  points.clear();
  for (int i = 0; i + 1 < flat.size(); i += 2) points << QPointF(flat[i], flat[i + 1]);
}

void listPosition(Fields& fields, double* position, ElementScope const& scope) {
  fields.numbers({"position", QT_TRANSLATE_NOOP("Fields", "Position"),
                  scope.onMap ? QT_TRANSLATE_NOOP("Fields", "The point of the map at which it stands.")
                              : QT_TRANSLATE_NOOP(
                                    "Fields", "The point at which it stands, from the lower left corner of the page.")},
                 position, NumbersKind::Point, anywhere(scope));
}

template <class S>
void listSymbolOf(Fields& fields, _ptr_t<S>& symbol) {
  listOptionalSymbol(fields,
                     {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"),
                      QT_TRANSLATE_NOOP("Fields", "How it is drawn; without a symbol it is not.")},
                     symbol);
}

}  // namespace

PointSettings PointSettings::of(MarkerElement const& marker, ElementScope const&) {
  return {{marker.shape()->GetX(), marker.shape()->GetY()}, marker.symbol()};
}

void PointSettings::list(Fields& fields, ElementScope const& scope) {
  listPosition(fields, position, scope);
  listSymbolOf(fields, symbol);
}

void PointSettings::applyTo(MarkerElement& marker, ElementScope const&) const {
  marker.setShape(make<Point>(position[0], position[1], 0.0));
  marker.setSymbol(symbol);
}

LineSettings LineSettings::of(LineElement const& line, ElementScope const&) {
  return {line.shape()->GetPoints(), line.heads(), line.symbol()};
}

void LineSettings::list(Fields& fields, ElementScope const& scope) {
  ArrowHeads const usual;
  listPoints(fields, points, 2, scope);
  fields.choice<ArrowHead>({"startHead", QT_TRANSLATE_NOOP("Fields", "Head at the start"),
                            QT_TRANSLATE_NOOP("Fields", "What the first vertex bears.")},
                           heads.start, arrowHeads, usual.start);
  fields.choice<ArrowHead>({"endHead", QT_TRANSLATE_NOOP("Fields", "Head at the end"),
                            QT_TRANSLATE_NOOP("Fields", "What the last vertex bears.")},
                           heads.end, arrowHeads, usual.end);
  fields.number({"headSize", QT_TRANSLATE_NOOP("Fields", "Size of the heads"),
                 QT_TRANSLATE_NOOP("Fields", "How long an arrow head is; bars are as wide, dots half as wide.")},
                heads.sizePt, {0.1, 1000, Unit::Point}, usual.sizePt);
  listSymbolOf(fields, symbol);
}

void LineSettings::applyTo(LineElement& line, ElementScope const&) const {
  line.setShape(make<Polyline>(points));
  line.setHeads(heads);
  line.setSymbol(symbol);
}

PolygonSettings PolygonSettings::of(PolygonElement const& polygon, ElementScope const&) {
  return {polygon.shape()->GetRings(), polygon.symbol()};
}

void PolygonSettings::list(Fields& fields, ElementScope const& scope) {
  fields.list({"rings", QT_TRANSLATE_NOOP("Fields", "Rings"),
               QT_TRANSLATE_NOOP("Fields", "Closed lines that bound the area; one within another is a hole."),
               scope.onMap ? "ringOfGraphic" : "ring"},
              rings, {1, maxRings}, [&](Fields& own, QVector<QPointF>& ring, int) { listPoints(own, ring, 3, scope); });
  listSymbolOf(fields, symbol);
}

void PolygonSettings::applyTo(PolygonElement& polygon, ElementScope const&) const {
  polygon.setShape(make<Polygon>(rings));
  polygon.setSymbol(symbol);
}

RectangleSettings RectangleSettings::of(Envelope const& rectangle) {
  RectangleSettings settings;
  rectangle.QueryCoords(settings.sides[0], settings.sides[1], settings.sides[2], settings.sides[3]);
  return settings;
}

void RectangleSettings::list(Fields& fields, Range const& range) {
  fields.numbers(
      {"rectangle", QT_TRANSLATE_NOOP("Fields", "Rectangle"),
       range.unit == Unit::MapUnit
           ? QT_TRANSLATE_NOOP("Fields", "Its left, lower, right and upper side on the map.")
           : QT_TRANSLATE_NOOP("Fields",
                               "Its left, lower, right and upper side, from the lower left corner of the page.")},
      sides, NumbersKind::Rectangle, range);
  if (fields.ok() && (sides[0] > sides[2] || sides[1] > sides[3]))
    fields.fail("rectangle", Texts::tr("must be xmin, ymin, xmax, ymax, with xmin ≤ xmax and ymin ≤ ymax"));
}

_ptr_t<Envelope> RectangleSettings::envelope() const { return make<Envelope>(sides[0], sides[1], sides[2], sides[3]); }

void FilledSettings::list(Fields& fields, ElementScope const& scope) {
  rectangle.list(fields, anywhere(scope));
  listSymbolOf(fields, symbol);
}

TextElementSettings TextElementSettings::of(TextElement const& element, ElementScope const&) {
  auto const at = ptr_cast<Point>(element.GetGeometry());
  return {{at->GetX(), at->GetY()}, element.text(),  element.fillsPlaceholders(),
          element.width(),          element.angle(), element.symbol()};
}

void TextElementSettings::list(Fields& fields, ElementScope const& scope) {
  listPosition(fields, position, scope);
  fields.text({"text", QT_TRANSLATE_NOOP("Fields", "Text"),
               scope.onMap ? QT_TRANSLATE_NOOP("Fields", "What it says.")
                           : QT_TRANSLATE_NOOP("Fields",
                                               "What it says. [scale], [date:yyyy-MM-dd], [document], [map], [crs], "
                                               "[credits], [title], [author], [page], [pages], [field:NAME] and "
                                               "[neighbour:north] are filled in while it is drawn.")},
              text, TextKind::Lines);
  QStringList const unknown = scope.onMap || !fillsPlaceholders ? QStringList() : Placeholders::unknownIn(text);
  if (!unknown.isEmpty())
    fields.remark("text", Texts::tr("%1 is no placeholder and stands as written; there are [%2].")
                              .arg(unknown.first(), Placeholders::names().join(QStringLiteral("], ["))));
  if (!scope.onMap)
    fields.flag({"placeholders", QT_TRANSLATE_NOOP("Fields", "Placeholders"),
                 QT_TRANSLATE_NOOP("Fields", "Whether placeholders are filled in, and do not stand as written.")},
                fillsPlaceholders, true);
  fields.number({"width", QT_TRANSLATE_NOOP("Fields", "Width"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "At which its lines are broken on paper; 0 breaks them only where the text "
                                   "does.")},
                widthCm, {0, TextElement::maxWidthCm, Unit::Centimetre}, 0.0);
  fields.number({"angle", QT_TRANSLATE_NOOP("Fields", "Angle"),
                 QT_TRANSLATE_NOOP("Fields", "How far the text is turned counterclockwise about its position.")},
                angle, {-360, 360, Unit::Degree}, 0.0);
  listSymbol(fields,
             {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"), QT_TRANSLATE_NOOP("Fields", "How the letters look.")},
             symbol);
}

void TextElementSettings::applyTo(TextElement& element, ElementScope const&) const {
  element.setPosition(position[0], position[1]);
  element.setText(text);
  element.setFillsPlaceholders(fillsPlaceholders);
  element.setWidth(widthCm);
  element.setAngle(angle);
  element.setSymbol(symbol);
}

PictureSettings PictureSettings::of(PictureElement const& picture, ElementScope const& scope) {
  QString const path = picture.path();
  bool const relates = scope.context.relativePaths && !path.isEmpty();
  return {RectangleSettings::of(*picture.shape()), relates ? QDir(scope.context.folder).relativeFilePath(path) : path,
          picture.data(), picture.angle()};
}

void PictureSettings::list(Fields& fields, ElementScope const& scope) {
  rectangle.list(fields, anywhere(scope));
  fields.text({"path", QT_TRANSLATE_NOOP("Fields", "File"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The file of the picture (PNG, JPEG, TIFF, WebP or SVG), relative to the document; "
                                 "without one, and without an embedded picture, a crossed frame is drawn.")},
              path, TextKind::File, QString());
  fields.text({"data", QT_TRANSLATE_NOOP("Fields", "Embedded picture"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The picture itself, as a data URI; it is drawn in place of the file, which then only "
                                 "says where the picture came from.")},
              data, TextKind::Picture, QString());
  if (fields.isReading() && fields.ok() && !data.isEmpty() && !embeddedBytes(data))
    fields.fail("data", Texts::tr("is no picture; it begins with “data:image/png;base64,”, or with jpeg, tiff, webp or "
                                  "svg+xml in place of png, and goes on with the file in base 64"));
  fields.number({"angle", QT_TRANSLATE_NOOP("Fields", "Angle"),
                 QT_TRANSLATE_NOOP("Fields", "How far the picture is turned counterclockwise about its middle.")},
                angle, {-360, 360, Unit::Degree}, 0.0);
}

void PictureSettings::applyTo(PictureElement& picture, ElementScope const& scope) const {
  picture.setShape(rectangle.envelope());
  picture.setSource(path.isEmpty() ? QString() : QDir::cleanPath(QDir(scope.context.folder).absoluteFilePath(path)),
                    data);
  picture.setAngle(angle);
  if ((path.isEmpty() && data.isEmpty()) || picture.problem().isEmpty()) return;
  ++scope.context.unreadableSources;
  scope.context.warnings << picture.problem();
}

GroupSettings GroupSettings::of(GroupElement const& group, ElementScope const&) { return {group.GetElements()}; }

void GroupSettings::list(Fields& fields, ElementScope const& scope) {
  if (scope.depth >= maxGroupDepth)
    return fields.fail(nullptr, Texts::tr("groups are nested more than %1 deep").arg(maxGroupDepth));
  ElementScope const inner{scope.context, scope.onMap, scope.depth + 1};
  fields.list({"members", QT_TRANSLATE_NOOP("Fields", "Members"),
               QT_TRANSLATE_NOOP("Fields", "The elements of the group; groups lie at most 16 deep in each other."),
               scope.onMap ? "memberOfGraphic" : "member"},
              members, {1, maxMembers},
              [&](Fields& own, _ptr_t<Element>& member, int) { listElement(own, member, inner); });
}

void GroupSettings::applyTo(GroupElement& group, ElementScope const&) const {
  for (_ptr_t<Element> const& member : members) group.AddElement(member);
}

OverviewSettings OverviewSettings::of(MapOverview const& overview, DocumentContext const& context) {
  return {mapNumber(overview.map(), context), overview.symbol()};
}

void OverviewSettings::list(Fields& fields, DocumentContext const& context) {
  listMapNumber(
      fields, map, context,
      QT_TRANSLATE_NOOP("Fields", "The number of the other map whose part of the world is marked; −1 for none."),
      false);
  listOptionalSymbol(
      fields,
      {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"),
       QT_TRANSLATE_NOOP("Fields", "How the area is drawn; without a symbol as a red line of one point.")},
      symbol);
}

void OverviewSettings::applyTo(MapOverview& overview, DocumentContext const& context) const {
  overview.setMap(context.maps.value(map));
  overview.setSymbol(symbol);
}

MapFrameSettings MapFrameSettings::of(MapFrameElement const& element, ElementScope const& scope) {
  MapFrameSettings settings{mapNumber(element.GetMap(), scope.context),
                            RectangleSettings::of(*element.GetEnvelope()),
                            FrameSettings::of(element),
                            {},
                            {}};
  for (int i = 0; i < element.GetMapGridCount(); ++i) {
    auto const overview = ptr_cast<MapOverview>(element.GetMapGrid(i));
    if (!overview) {
      settings.grids << element.GetMapGrid(i);
      continue;
    }
    settings.overviews << OverviewSettings::of(*overview, scope.context);
    bool const isOwn = overview->map() == element.GetMap();  // which it may have become
    if (isOwn) settings.overviews.last().map = OverviewSettings().map;
  }
  return settings;
}

void MapFrameSettings::list(Fields& fields, ElementScope const& scope) {
  listMapNumber(
      fields, map, scope.context,
      QT_TRANSLATE_NOOP("Fields",
                        "The number of the map that it shows, which no other data frame shows; the first one is 0."),
      true);
  if (fields.ok() && scope.context.framedMaps.contains(map))
    return fields.fail("map", Texts::tr("another data frame shows this map already"));
  scope.context.framedMaps << map;
  rectangle.list(fields, onPage);
  frame.list(fields);
  fields.list({"overviews", QT_TRANSLATE_NOOP("Fields", "Overviews"),
               QT_TRANSLATE_NOOP("Fields", "What other maps show, marked on this one."), "overview"},
              overviews, maxGrids, [&](Fields& own, OverviewSettings& overview, int) {
                overview.list(own, scope.context);
                if (own.ok() && overview.map == map)
                  own.fail("map", Texts::tr("is the map of this data frame; enter the number of another one"));
              });
  fields.list(
      {"grids", QT_TRANSLATE_NOOP("Fields", "Grids"), QT_TRANSLATE_NOOP("Fields", "Grids over the map."), "grid"},
      grids, maxGrids, [](Fields& own, _ptr_t<IMapGrid>& grid, int) { listGrid(own, grid); });
}

void MapFrameSettings::applyTo(MapFrameElement& element, ElementScope const& scope) const {
  frame.applyTo(element);
  for (OverviewSettings const& settings : overviews) {
    auto const overview = make<MapOverview>();
    settings.applyTo(*overview, scope.context);
    element.AddMapGrid(overview);
  }
  for (_ptr_t<IMapGrid> const& grid : grids) element.AddMapGrid(grid);
  element.SetMap(scope.context.maps.value(map));
  element.SetGeometry(rectangle.envelope());
  for (_ptr_t<IMapGrid> const& grid : grids) {
    auto const graticule = ptr_cast<Graticule>(grid);
    QString const problem = graticule ? GraticuleSettings::problemOf(*graticule, element) : QString();
    if (!problem.isEmpty()) scope.context.warnings << problem;
  }
}

SurroundFrameSettings SurroundFrameSettings::of(MapSurroundFrame const& element, ElementScope const&) {
  return {RectangleSettings::of(*element.GetEnvelope()), FrameSettings::of(element), element.GetMapSurround()};
}

void SurroundFrameSettings::list(Fields& fields, ElementScope const& scope) {
  rectangle.list(fields, onPage);
  frame.list(fields);
  bool const isThere = fields.optionalObject(
      {"surround", QT_TRANSLATE_NOOP("Fields", "Map surround"),
       QT_TRANSLATE_NOOP("Fields", "What explains the map: a legend, a scale bar, a scale text or a north arrow.")},
      bool(surround), [&](Fields& own) { listSurround(own, surround, scope.context); });
  if (fields.isReading() && !isThere) surround = nullptr;
}

void SurroundFrameSettings::applyTo(MapSurroundFrame& element, ElementScope const&) const {
  frame.applyTo(element);
  element.SetGeometry(rectangle.envelope());
  if (surround) element.SetMapSurround(surround);
}

}  // namespace SysCarto
