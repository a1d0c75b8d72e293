#include "DocumentArchive.h"

#include "host/SysCarto/document/ElementArchive.h"
#include "host/SysCarto/document/LayerArchive.h"
#include "host/SysCarto/maps/MapLimits.h"
#include "host/SysCarto/projection/CoordinateSystem.h"

#include <SysCarto/MapSurroundFrame.h>

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace SysCarto {

using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::Archive;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr int documentVersion = 1;
constexpr int newestThinkable = 1000000;
constexpr int mostMaps = 1000, mostLayers = 10000, mostElements = 1000000;

QString translated(char const* text) { return QCoreApplication::translate("MapDocument", text); }

void describeFormat(Archive& archive) {
  QString const ours = QStringLiteral("plotvane-document");
  QString format = ours;
  int version = documentVersion;
  archive.text("format", format);
  if (archive.ok() && format != ours)
    return archive.fail("format", translated("is not “%1”, so this is no map document").arg(ours));
  archive.integer("version", version, 1, newestThinkable);
  if (archive.ok() && version > documentVersion)
    archive.fail("version", translated("the document was written by a newer version of Plotvane, as version %1; "
                                       "update Plotvane, or save it there as version %2")
                                .arg(version)
                                .arg(documentVersion));
}

void describeBounds(Archive& archive, Map& map) {
  Envelope const stored = map.GetStoredBounds();
  double sides[4];
  stored.QueryCoords(sides[0], sides[1], sides[2], sides[3]);
  archive.numbers("bounds", sides, 4, -farthestMapCoordinate, farthestMapCoordinate);
  if (!archive.reading() || !archive.ok()) return;
  if (sides[2] - sides[0] < smallestMapExtent || sides[3] - sides[1] < smallestMapExtent)
    return archive.fail("bounds", translated("must be xmin, ymin, xmax, ymax, with xmin < xmax and ymin < ymax"));
  map.SetExtent(make<Envelope>(sides[0], sides[1], sides[2], sides[3]));
}

void describeCoordinateSystem(Archive& archive, Map& map) {
  QString definition = map.GetCoordinateSystem();
  archive.text("coordinateSystem", definition, QString());
  if (!archive.reading() || !archive.ok()) return;
  QString const problem = checkCoordinateSystem(definition);
  if (!problem.isEmpty()) return archive.fail("coordinateSystem", problem);
  map.SetCoordinateSystem(definition);
}

void describeLayers(Archive& archive, Map& map, DocumentContext& context) {
  archive.list("layers", map.GetLayerCount(), mostLayers, [&](Archive& child, int index) {
    _ptr_t<Layer> layer = child.reading() ? nullptr : map.GetLayer(index);
    describeLayer(child, layer, map, context);
    if (child.reading() && child.ok()) map.AddLayer(layer);
  });
}

// A map that lay on a map might show itself.
void refuseMaps(Archive& archive, _ptr_t<Element> const& element) {
  QString type;
  if (archive.reading()) archive.text("type", type);
  bool const showsMap = archive.reading() ? type == QLatin1String("dataFrame") || type == QLatin1String("surround")
                                          : ptr_cast<MapFrameElement>(element) || ptr_cast<MapSurroundFrame>(element);
  if (showsMap) archive.fail("type", translated("data frames and surrounds can't lie on a map, only on the page"));
}

// Elements without a handle get one before a container sees them: it would take the next one for itself, and that may
// be the handle of an element further on in the list.
void giveHandles(QList<_ptr_t<Element>> const& elements) {
  ElementHandle highest = 0;
  for (auto const& element : elements) highest = std::max(highest, element->GetHandle());
  for (auto const& element : elements)
    if (element->GetHandle() == 0) element->setHandle(++highest);
}

void describeElements(Archive& archive, char const* key, IElementContainer& container, DocumentContext& context,
                      bool onPage) {
  auto elements = archive.reading() ? QList<_ptr_t<Element>>() : container.GetElements();
  archive.list(key, elements.size(), mostElements, [&](Archive& child, int index) {
    _ptr_t<Element> element = elements.value(index);
    if (!onPage) refuseMaps(child, element);
    describeElement(child, element, context);
    if (child.reading() && child.ok()) elements << element;
  });
  if (!archive.reading() || !archive.ok()) return;
  giveHandles(elements);
  container.AddElements(elements);
}

void describeMaps(Archive& archive, DocumentContext& context) {
  archive.list("maps", context.maps.size(), mostMaps, [&](Archive& child, int index) {
    auto const map = child.reading() ? make<Map>() : context.maps.at(index);
    describeMap(child, *map, context);
    if (child.reading()) context.maps << map;
  });
}

void describePageOf(Archive& archive, PageLayout& layout) {
  auto const page = archive.reading() ? make<Page>() : SysUtility::retain(layout.GetPage());
  bool const present = archive.optionalObject("page", bool(page), [&](Archive& child) { describePage(child, *page); });
  if (archive.reading()) layout.SetPage(present ? page : nullptr);
}

void describeSettings(Archive& archive, PageLayout& layout, DocumentContext const& context) {
  bool alignToMargins = layout.GetAlignToMargins();
  int focus = std::max(0, context.maps.indexOf(layout.GetFocusMap()));
  archive.optionalObject("layout", alignToMargins || focus > 0, [&](Archive& child) {
    child.flag("alignToMargins", alignToMargins, false);
    child.integer("focusMap", focus, 0, std::max(0, context.maps.size() - 1), 0);
  });
  if (!archive.reading() || !archive.ok()) return;
  layout.SetAlignToMargins(alignToMargins);
  if (!context.maps.isEmpty()) layout.SetFocusMap(context.maps.at(focus));
}

void noteUnusedMaps(PageLayout const& layout, DocumentContext& context) {
  auto const used = mapsOf(layout);
  for (int i = 0; i < context.maps.size(); ++i)
    if (!used.contains(context.maps.at(i)))
      context.warnings << translated(
                              "maps[%1]: no data frame shows this map; it is left out and will be missing after "
                              "the next save")
                              .arg(i);
}

}  // namespace

// A surround keeps the map that it follows, also after its data frame was deleted.
QList<_ptr_t<Map>> mapsOf(PageLayout const& layout) {
  QList<_ptr_t<Map>> maps;
  layout.GetMaps(maps);
  for (auto const& element : layout.GetGraphicsContainer()->GetElements()) {
    auto const frame = ptr_cast<MapSurroundFrame>(element);
    auto const surround = frame ? frame->GetMapSurround() : nullptr;
    auto const map = surround ? surround->GetMap() : nullptr;
    if (map && !maps.contains(map)) maps << map;
  }
  return maps;
}

void describeMap(Archive& archive, Map& map, DocumentContext& context) {
  QString name = map.GetName();
  archive.text("name", name);
  map.SetName(name);
  describeCoordinateSystem(archive, map);
  describeBounds(archive, map);
  describeLayers(archive, map, context);
  auto const handlesOfPage = std::exchange(context.handles, {});
  describeElements(archive, "graphics", *map.GetGraphicsContainer(), context, false);
  context.handles = handlesOfPage;
}

void describeDocument(Archive& archive, DocumentContent& content, DocumentContext& context) {
  describeFormat(archive);
  if (!archive.ok()) return;
  if (archive.reading()) content.layout = make<PageLayout>();
  PageLayout& layout = *content.layout;
  archive.flag("relativePaths", content.relativePaths, true);
  describeMaps(archive, context);
  describePageOf(archive, layout);
  describeElements(archive, "elements", *layout.GetGraphicsContainer(), context, true);
  if (archive.ok()) describeSettings(archive, layout, context);
  if (archive.reading() && archive.ok()) noteUnusedMaps(layout, context);
}

}  // namespace SysCarto
