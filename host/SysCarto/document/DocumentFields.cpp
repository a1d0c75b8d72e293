#include "DocumentFields.h"

#include "DocumentSettings.h"
#include "ElementFields.h"
#include "MapSettings.h"
#include "SeriesSettings.h"

#include "host/SysCarto/document/LayerSettings.h"
#include "host/SysCarto/document/SurroundFields.h"
#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layout/MapOverview.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysUtility/JsonFile.h"

#include <algorithm>
#include <utility>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Fields;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr int documentVersion = 1;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapDocument)
};

// Elements without a handle get one before a container sees them: it would take the next one for itself, and that may
// be the handle of an element further on in the list.
void giveHandles(QList<_ptr_t<Element>> const& elements) {
  ElementHandle highest = 0;
  for (auto const& element : elements) highest = std::max(highest, element->GetHandle());
  for (auto const& element : elements)
    if (element->GetHandle() == 0) ElementHost::setHandle(*element, ++highest);
}

// The elements of a page or a map. Reading adds them to the container.
void listElementsOf(Fields& fields, SysUtility::Field const& field, IElementContainer& container,
                    ElementScope const& scope) {
  auto elements = fields.isReading() ? QList<_ptr_t<Element>>() : container.GetElements();
  listElements(fields, field, elements, scope);
  if (!fields.isReading() || !fields.ok()) return;
  giveHandles(elements);
  container.AddElements(elements);
}

void listLayers(Fields& fields, _ptr_t<Map> const& map, DocumentContext& context) {
  auto entries = fields.isReading() ? std::vector<LayerEntry>() : entriesOf(*map);
  listLayerEntries(fields, entries, *map, context);
  if (!fields.isReading() || !fields.ok()) return;
  LayerList list{map, {}};
  addEntries(list, entries);
  MapHost::setLayers(*map, list.layers);
  for (int i = 0; i < list.layers.size(); ++i) LayerHost::setGroups(*list.layers[i], list.groups[i]);
}

void listSettings(Fields& fields, PageLayout& layout) {
  auto settings = DocumentSettings::of(layout);
  settings.list(fields);
  if (fields.isReading() && fields.ok()) settings.applyTo(layout);
}

void listPage(Fields& fields, PageLayout& layout) {
  Page const* const page = fields.isReading() ? nullptr : layout.GetPage();
  PageSettings settings = page ? PageSettings::of(*page) : PageSettings();
  bool const isThere =
      fields.optionalObject({"page", QT_TRANSLATE_NOOP("Fields", "Page"), QT_TRANSLATE_NOOP("Fields", "The sheet.")},
                            page != nullptr, [&](Fields& own) { settings.list(own); });
  if (!fields.isReading() || !fields.ok()) return;
  auto const made = isThere ? make<Page>() : nullptr;
  if (made) settings.applyTo(*made);
  layout.SetPage(made);
}

void listLayout(Fields& fields, PageLayout& layout, DocumentContext const& context) {
  bool alignToMargins = layout.GetAlignToMargins();
  int focus = std::max(0, context.maps.indexOf(layout.GetFocusMap()));
  fields.optionalObject(
      {"layout", QT_TRANSLATE_NOOP("Fields", "Layout"), QT_TRANSLATE_NOOP("Fields", "Settings of the layout.")},
      alignToMargins || focus > 0, [&](Fields& own) {
        own.flag({"alignToMargins", QT_TRANSLATE_NOOP("Fields", "Align to margins"),
                  QT_TRANSLATE_NOOP(
                      "Fields", "Whether elements are aligned with the edges of the page, and not with each other.")},
                 alignToMargins, false);
        own.integer({"focusMap", QT_TRANSLATE_NOOP("Fields", "Focus map"),
                     QT_TRANSLATE_NOOP("Fields", "The number of the map that insertion and navigation work on.")},
                    focus, 0, std::max(0, lastMap(fields, context)), 0);
      });
  if (!fields.isReading() || !fields.ok()) return;
  layout.SetAlignToMargins(alignToMargins);
  if (!context.maps.isEmpty()) layout.SetFocusMap(context.maps.at(focus));
}

void listSeries(Fields& fields, PageLayout& layout, DocumentContext const& context) {
  SeriesSettings settings = fields.isReading() ? SeriesSettings() : SeriesSettings::of(layout, context);
  settings.lastMap = lastMap(fields, context);
  bool const isThere = fields.optionalObject(
      {"series", QT_TRANSLATE_NOOP("Fields", "Series"),
       QT_TRANSLATE_NOOP("Fields", "A page for each feature of a layer, or for each row of a table.")},
      settings.series.isUsed(), [&](Fields& own) { settings.list(own); });
  if (fields.isReading() && fields.ok() && isThere) settings.applyTo(layout, context);
}

void noteUnusedMaps(PageLayout const& layout, DocumentContext& context) {
  auto const used = mapsOf(layout);
  for (int i = 0; i < context.maps.size(); ++i)
    if (!used.contains(context.maps.at(i)))
      context.warnings << Texts::tr(
                              "maps[%1]: no data frame shows this map; it is left out and will be missing after "
                              "the next save")
                              .arg(i);
}

void noteProblems(PageLayout const& layout, DocumentContext& context) {
  for (auto const& element : layout.GetGraphicsContainer()->GetElements()) {
    QString const problem = problemOf(*element);
    if (!problem.isEmpty()) context.warnings << problem;
  }
}

}  // namespace

QList<_ptr_t<Map>> mapsFollowedBy(Element const& element) {
  QList<_ptr_t<Map>> maps;
  int const type = element.GetType();  // most are neither, and a page may have tens of thousands
  if (type != ElementType::DataFrame && type != ElementType::MapSurroundFrame) return maps;
  auto const add = [&maps](_ptr_t<Map> const& map) {
    if (map) maps << map;
  };
  if (auto const* const surroundFrame = dynamic_cast<MapSurroundFrame const*>(&element))
    if (auto const surround = surroundFrame->GetMapSurround()) add(surround->GetMap());
  if (auto const* const frame = dynamic_cast<MapFrameElement const*>(&element))
    for (int i = 0; i < frame->GetMapGridCount(); ++i)
      if (auto const overview = ptr_cast<MapOverview>(frame->GetMapGrid(i))) add(overview->map());
  return maps;
}

QList<_ptr_t<Map>> mapsOf(PageLayout const& layout) {
  QList<_ptr_t<Map>> maps;
  layout.GetMaps(maps);
  for (auto const& element : static_cast<ElementContainer*>(layout.GetGraphicsContainer())->order().elements)
    for (auto const& map : mapsFollowedBy(*element))
      if (!maps.contains(map)) maps << map;
  return maps;
}

void listMap(Fields& fields, _ptr_t<Map>& map, DocumentContext& context) {
  bool const isPresent = map && !fields.isReading();
  MapSettings settings = isPresent ? MapSettings::of(*map) : MapSettings();
  settings.list(fields);
  auto const listed = isPresent ? map : make<Map>();
  if (fields.isReading() && fields.ok()) settings.applyTo(*listed, context.warnings);
  listLayers(fields, listed, context);
  auto const handlesOfPage = std::exchange(context.handles, {});
  listElementsOf(fields,
                 {"graphics", QT_TRANSLATE_NOOP("Fields", "Graphics"),
                  QT_TRANSLATE_NOOP("Fields", "Elements that lie on the map, in map units."), "graphic"},
                 *listed->GetGraphicsContainer(), {context, true});
  context.handles = handlesOfPage;
  if (fields.isReading() && fields.ok()) map = listed;
}

void DocumentContent::list(Fields& fields, DocumentContext& context) {
  listFormat(fields, {"plotvane-document", QT_TRANSLATE_NOOP("Fields", "Map document"), documentVersion,
                      Texts::tr("is not “%1”, so this is no map document"),
                      Texts::tr("the document was written by a newer version of Plotvane, as version %1; "
                                "update Plotvane, or save it there as version %2")
                          .arg(QStringLiteral("%1"), QString::number(documentVersion))});
  if (!fields.ok()) return;
  if (fields.isReading() || !layout) layout = make<PageLayout>();
  fields.flag({"relativePaths", QT_TRANSLATE_NOOP("Fields", "Relative paths"),
               QT_TRANSLATE_NOOP("Fields", "Whether files are named relative to the document.")},
              relativePaths, true);
  listSettings(fields, *layout);
  fields.list(
      {"maps", QT_TRANSLATE_NOOP("Fields", "Maps"),
       QT_TRANSLATE_NOOP("Fields", "The maps, which data frames and surrounds name by their number here, from 0."),
       "map"},
      context.maps, maxMaps, [&](Fields& own, _ptr_t<Map>& map, int) { listMap(own, map, context); });
  listPage(fields, *layout);
  listElementsOf(fields,
                 {"elements", QT_TRANSLATE_NOOP("Fields", "Elements"),
                  QT_TRANSLATE_NOOP("Fields", "What lies on the page, the lowest first."), "element"},
                 *layout->GetGraphicsContainer(), {context});
  if (fields.ok()) listSeries(fields, *layout, context);
  if (fields.ok()) listLayout(fields, *layout, context);
  if (!fields.isReading() || !fields.ok()) return;
  noteUnusedMaps(*layout, context);
  noteProblems(*layout, context);  // only now are the maps in their frames
}

}  // namespace SysCarto
