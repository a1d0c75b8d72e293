#include "ElementArchive.h"

#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysDisplay/SymbolArchive.h"

#include <SysCarto/Graticule.h>
#include <SysCarto/GroupElement.h>
#include <SysCarto/MapFrameElement.h>
#include <SysCarto/MapSurroundFrame.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::describeOptionalSymbol;
using SysDisplay::describeSymbol;
using SysGeometry::Envelope;
using SysGeometry::Point;
using SysGeometry::Polygon;
using SysGeometry::Polyline;
using SysUtility::_ptr_t;
using SysUtility::Archive;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr double farthestOnPageCm = 10000;
constexpr double farthestAnywhere = 1e12;  // graphics lie on maps, too, in map units
constexpr ElementHandle largestHandle = 1000000000;
constexpr int mostMembers = 100000, mostRings = 100000, mostGrids = 100;
constexpr int deepestGroup = 16;

QString translated(char const* text) { return QCoreApplication::translate("ElementArchive", text); }

// What the describing functions share: the whole document, and how many groups the element lies in.
struct Scope {
  DocumentContext& context;
  int depth = 0;
};

void describeAny(Archive& archive, _ptr_t<Element>& element, Scope scope);

_ptr_t<Envelope> describeRectangle(Archive& archive, Envelope const& present, double farthest) {
  double sides[4];
  present.QueryCoords(sides[0], sides[1], sides[2], sides[3]);
  archive.numbers("rectangle", sides, 4, -farthest, farthest);
  if (archive.ok() && (sides[0] > sides[2] || sides[1] > sides[3]))
    archive.fail("rectangle", translated("must be xmin, ymin, xmax, ymax, with xmin ≤ xmax and ymin ≤ ymax"));
  return make<Envelope>(sides[0], sides[1], sides[2], sides[3]);
}

void describePoints(Archive& archive, QVector<QPointF>& points, int fewest) {
  QVector<double> flat;
  for (QPointF const& point : qAsConst(points)) flat << point.x() << point.y();
  archive.coordinates("points", flat);
  if (!archive.ok()) return;
  if (flat.size() < 2 * fewest) return archive.fail("points", translated("needs at least %1 points").arg(fewest));
  if (std::any_of(flat.begin(), flat.end(), [](double value) { return std::abs(value) > farthestAnywhere; }))
    return archive.fail("points", translated("holds a coordinate beyond %1").arg(farthestAnywhere));
  points.clear();
  for (int i = 0; i + 1 < flat.size(); i += 2) points << QPointF(flat[i], flat[i + 1]);
}

template <class E>
void describeSymbolOf(Archive& archive, E& element) {
  auto symbol = element.symbol();
  describeOptionalSymbol(archive, "symbol", symbol);
  element.setSymbol(symbol);
}

void describe(Archive& archive, MarkerElement& marker, Scope) {
  double position[] = {marker.shape()->GetX(), marker.shape()->GetY()};
  archive.numbers("position", position, 2, -farthestAnywhere, farthestAnywhere);
  marker.setShape(make<Point>(position[0], position[1], 0.0));
  describeSymbolOf(archive, marker);
}

void describe(Archive& archive, LineElement& line, Scope) {
  QVector<QPointF> points = line.shape()->GetPoints();
  describePoints(archive, points, 2);
  line.setShape(make<Polyline>(points));
  describeSymbolOf(archive, line);
}

void describe(Archive& archive, PolygonElement& polygon, Scope) {
  QVector<QVector<QPointF>> rings = polygon.shape()->GetRings();
  archive.list("rings", rings.size(), mostRings, [&](Archive& object, int index) {
    if (object.reading()) rings << QVector<QPointF>();
    describePoints(object, rings[index], 3);
  });
  if (archive.ok() && rings.isEmpty()) archive.fail("rings", translated("needs at least one ring"));
  polygon.setShape(make<Polygon>(rings));
  describeSymbolOf(archive, polygon);
}

template <class E>
void describeFilled(Archive& archive, E& element) {
  element.setShape(describeRectangle(archive, *element.shape(), farthestAnywhere));
  describeSymbolOf(archive, element);
}
void describe(Archive& archive, RectangleElement& rectangle, Scope) { describeFilled(archive, rectangle); }
void describe(Archive& archive, EllipseElement& ellipse, Scope) { describeFilled(archive, ellipse); }

void describe(Archive& archive, TextElement& element, Scope) {
  auto const at = ptr_cast<Point>(element.GetGeometry());
  double position[] = {at->GetX(), at->GetY()}, angle = element.angle();
  QString text = element.text();
  auto symbol = element.symbol();
  archive.numbers("position", position, 2, -farthestAnywhere, farthestAnywhere);
  archive.text("text", text);
  archive.number("angle", angle, -360, 360, 0);
  describeSymbol(archive, "symbol", symbol);
  element.setPosition(position[0], position[1]);
  element.setText(text);
  element.setAngle(angle);
  element.setSymbol(symbol);
}

void describe(Archive& archive, PictureElement& picture, Scope scope) {
  QDir const folder(scope.context.folder);
  QString path = picture.path();
  bool const relates = scope.context.relativePaths && !path.isEmpty();
  if (!archive.reading() && relates) path = folder.relativeFilePath(path);
  picture.setShape(describeRectangle(archive, *picture.shape(), farthestAnywhere));
  archive.text("path", path);
  if (!archive.reading() || !archive.ok()) return;
  picture.setPath(path.isEmpty() ? QString() : QDir::cleanPath(folder.absoluteFilePath(path)));
  if (path.isEmpty() || picture.problem().isEmpty()) return;
  ++scope.context.unreadableSources;
  scope.context.warnings << picture.problem();
}

void describe(Archive& archive, GroupElement& group, Scope scope) {
  if (scope.depth >= deepestGroup)
    return archive.fail(nullptr, translated("groups are nested more than %1 deep").arg(deepestGroup));
  auto const members = group.GetElements();
  archive.list("members", members.size(), mostMembers, [&](Archive& object, int index) {
    _ptr_t<Element> member = members.value(index);
    describeAny(object, member, {scope.context, scope.depth + 1});
    if (object.reading() && object.ok()) group.AddElement(member);
  });
  if (archive.ok() && group.GetElements().isEmpty()) archive.fail("members", translated("needs at least one element"));
}

// A map of the document by its number; -1 is none.
void describeMapNumber(Archive& archive, _ptr_t<Map>& map, DocumentContext const& context, bool required) {
  int number = context.maps.indexOf(map);
  int const last = context.maps.size() - 1;
  if (!archive.reading() && number < 0 && map) return archive.fail("map", translated("is no map of the document"));
  if (required)
    archive.integer("map", number, 0, last);
  else
    archive.integer("map", number, -1, last, -1);
  if (archive.ok()) map = context.maps.value(number);
}

void describeGrids(Archive& archive, MapFrameElement& frame) {
  archive.list("grids", frame.GetMapGridCount(), mostGrids, [&](Archive& object, int index) {
    _ptr_t<IMapGrid> const grid = object.reading() ? _ptr_t<IMapGrid>(new Graticule) : frame.GetMapGrid(index);
    QString name = grid->GetName();
    object.text("name", name, QString());
    grid->SetName(name);
    grid->describe(object);
    if (object.reading()) frame.AddMapGrid(grid);
  });
}

void describe(Archive& archive, MapFrameElement& frame, Scope scope) {
  _ptr_t<Map> map = frame.GetMap();
  describeMapNumber(archive, map, scope.context, true);
  if (archive.ok() && scope.context.framedMaps.contains(map.get()))
    return archive.fail("map", translated("another data frame shows this map already"));
  scope.context.framedMaps << map.get();
  bool locked = frame.IsLocked();
  archive.flag("locked", locked, false);
  auto const rectangle = describeRectangle(archive, *frame.GetEnvelope(), farthestOnPageCm);
  describeFrame(archive, frame);
  describeGrids(archive, frame);
  if (!archive.reading() || !archive.ok()) return;
  frame.SetMap(map);
  frame.SetLocked(locked);
  frame.SetGeometry(rectangle);
  for (int i = 0; i < frame.GetMapGridCount(); ++i) {
    QString const problem = frame.GetMapGrid(i)->problemOn(frame);
    if (!problem.isEmpty()) scope.context.warnings << problem;
  }
}

// A kind of map surround: its name in a document, and what makes one.
struct SurroundKind {
  char const* name;
  int kind;
  _ptr_t<MapSurround> (*create)();
};
// clang-format off
constexpr SurroundKind surroundKinds[] = {
    {"legend",     1, [] { return _ptr_t<MapSurround>(new Legend); }},
    {"scaleLine",  2, [] { return _ptr_t<MapSurround>(new ScaleLine); }},
    {"scaleText",  3, [] { return _ptr_t<MapSurround>(new ScaleText); }},
    {"northArrow", 6, [] { return _ptr_t<MapSurround>(new MarkerNorthArrow); }},
};
// clang-format on

void describeSurround(Archive& archive, _ptr_t<MapSurround>& surround, DocumentContext const& context) {
  int kind = surround ? surround->kind : 0;
  archive.choice("kind", kind, {{1, "legend"}, {2, "scaleLine"}, {3, "scaleText"}, {6, "northArrow"}});
  if (!archive.ok()) return;
  for (SurroundKind const& known : surroundKinds)
    if (archive.reading() && known.kind == kind) surround = known.create();
  _ptr_t<Map> map = surround->GetMap();
  describeMapNumber(archive, map, context, false);
  surround->SetMap(map);
  surround->describe(archive);
}

void describe(Archive& archive, MapSurroundFrame& frame, Scope scope) {
  auto const rectangle = describeRectangle(archive, *frame.GetEnvelope(), farthestOnPageCm);
  describeFrame(archive, frame);
  _ptr_t<MapSurround> surround = frame.GetMapSurround();
  bool const isThere = archive.optionalObject(
      "surround", bool(surround), [&](Archive& object) { describeSurround(object, surround, scope.context); });
  if (!archive.reading() || !archive.ok()) return;
  frame.SetGeometry(rectangle);
  if (isThere) frame.SetMapSurround(surround);
}

// A kind of element: its name in a document, and what is done with it.
struct Kind {
  char const* name;
  bool mayBeMember;  // of a group
  bool (*matches)(Element const&);
  _ptr_t<Element> (*create)();
  void (*describe)(Archive&, Element&, Scope);
};

template <class T>
constexpr Kind kind(char const* name, bool mayBeMember = true) {
  return {name, mayBeMember, [](Element const& element) { return dynamic_cast<T const*>(&element) != nullptr; },
          [] { return _ptr_t<Element>(new T); },
          [](Archive& archive, Element& element, Scope scope) { describe(archive, static_cast<T&>(element), scope); }};
}

constexpr Kind kinds[] = {
    kind<MarkerElement>("marker"),
    kind<LineElement>("line"),
    kind<PolygonElement>("polygon"),
    kind<RectangleElement>("rectangle"),
    kind<EllipseElement>("ellipse"),
    kind<TextElement>("text"),
    kind<GroupElement>("group"),
    kind<MapFrameElement>("dataFrame", false),
    kind<MapSurroundFrame>("surround", false),
    kind<PictureElement>("picture"),
};

Kind const* kindOf(Element const* element) {
  for (Kind const& kind : kinds)
    if (element && kind.matches(*element)) return &kind;
  return nullptr;
}

Kind const* kindOf(QString const& name, QStringList& known) {
  for (Kind const& kind : kinds) {
    known << QLatin1String(kind.name);
    if (name == known.last()) return &kind;
  }
  return nullptr;
}

// A member of a group is known to no container and has no handle.
void describeHandle(Archive& archive, Element& element, Scope scope) {
  if (scope.depth > 0) return;
  ElementHandle handle = element.GetHandle();
  archive.integer("handle", handle, 0, largestHandle, 0);
  if (!archive.reading() || !archive.ok() || handle == 0) return;
  if (scope.context.handles.contains(handle))
    return archive.fail("handle", translated("%1 is another element's handle already").arg(handle));
  scope.context.handles << handle;
  element.setHandle(handle);
}

void describeAny(Archive& archive, _ptr_t<Element>& element, Scope scope) {
  Kind const* kind = archive.reading() ? nullptr : kindOf(element.get());
  QString type = kind ? QLatin1String(kind->name) : QString();
  if (!archive.reading() && !kind)
    return archive.fail(nullptr, translated("an element of a kind that can't be stored"));
  archive.text("type", type);
  if (!archive.ok()) return;
  QStringList known;
  if (archive.reading()) kind = kindOf(type, known);
  if (!kind)
    return archive.fail("type",
                        translated("“%1” is not one of %2").arg(type.left(64), known.join(QStringLiteral(", "))));
  if (scope.depth > 0 && !kind->mayBeMember)
    return archive.fail("type", translated("“%1” can't be part of a group").arg(type));
  _ptr_t<Element> const described = archive.reading() ? kind->create() : element;
  describeHandle(archive, *described, scope);
  QString name = described->GetName();
  archive.text("name", name, QString());
  described->SetName(name);
  kind->describe(archive, *described, scope);
  if (archive.ok()) element = described;
}

}  // namespace

void describeElement(Archive& archive, _ptr_t<Element>& element, DocumentContext& context) {
  describeAny(archive, element, {context});
}

}  // namespace SysCarto
