#include "RasterLayerSettings.h"

#include "host/SysUtility/Fields.h"

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

constexpr int maxNoData = 8;
constexpr double farthest = 1e308;

// clang-format off
constexpr Choice resamplings[] = {
    {Resampling::Nearest,  "nearest",  QT_TRANSLATE_NOOP("Fields", "The nearest pixel")},
    {Resampling::Bilinear, "bilinear", QT_TRANSLATE_NOOP("Fields", "Bilinear")},
    {Resampling::Cubic,    "cubic",    QT_TRANSLATE_NOOP("Fields", "Cubic")},
    {Resampling::Average,  "average",  QT_TRANSLATE_NOOP("Fields", "Mean of what a pixel covers")},
};
// clang-format on

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(LayerSettings)
};

void listSource(Fields& fields, RasterSourceSettings& source) {
  fields.filledText({"file", QT_TRANSLATE_NOOP("Fields", "File"),
                     QT_TRANSLATE_NOOP("Fields",
                                       "The local file of the pixels (GeoTIFF, JPEG 2000, GeoPackage or MBTiles, PNG "
                                       "or JPEG with a world file), relative to the document.")},
                    source.file, TextKind::File);
  fields.text({"layer", QT_TRANSLATE_NOOP("Fields", "Layer of the file"),
               QT_TRANSLATE_NOOP("Fields", "Its name in the file; the first one where it is empty.")},
              source.layer, TextKind::Line, QString());
  fields.text({"coordinateSystem", QT_TRANSLATE_NOOP("Fields", "Coordinate system"),
               QT_TRANSLATE_NOOP("Fields", "Stands in for that of the file where it is not empty.")},
              source.coordinateSystem, TextKind::CoordinateSystem, QString());
  fields.numberList({"noData", QT_TRANSLATE_NOOP("Fields", "No data"),
                     QT_TRANSLATE_NOOP("Fields", "Values that mean that there is none, beside what the file says.")},
                    source.noData, {0, maxNoData}, {-farthest, farthest});
}

void open(RasterLayer& layer, RasterSourceSettings const& source, Map const& map, DocumentContext& context) {
  if (context.wasStopped) return;
  QString const problem = layer.open(source, map.GetCoordinateSystem());
  bool const isNowhere = layer.raster() && !layer.raster()->system() && !map.GetCoordinateSystem().isEmpty();
  if (isNowhere)
    context.warnings << Texts::tr(
                            "Layer “%1”: no coordinate system is known for the raster; its coordinates are taken as "
                            "those of the map. Give one in the source's field “coordinateSystem”.")
                            .arg(layer.GetName());
  if (problem.isEmpty()) return;
  ++context.unreadableSources;
  context.warnings << Texts::tr("Layer “%1”: %2").arg(layer.GetName(), problem);
}

RasterSourceSettings toOpen(RasterSourceSettings source, DocumentContext const& context) {
  source.file = pathToOpen(source.file, context);
  return source;
}

}  // namespace

RasterLayerSettings RasterLayerSettings::of(RasterLayer const& layer, DocumentContext const& context) {
  RasterLayerSettings settings{layer.source(), layer.look(), CommonLayerSettings::of(layer)};
  settings.source.file = storedPath(settings.source.file, context);
  return settings;
}

void RasterLayerSettings::list(Fields& fields) {
  fields.object({"source", QT_TRANSLATE_NOOP("Fields", "Source"),
                 QT_TRANSLATE_NOOP("Fields", "Where the data come from."), "rasterSource"},
                [this](Fields& own) { listSource(own, source); });
  fields.object({"renderer", QT_TRANSLATE_NOOP("Fields", "Colours"),
                 QT_TRANSLATE_NOOP("Fields", "How the raster is drawn."), "rasterRenderer"},
                [this](Fields& own) { look.renderer.list(own); });
  fields.choice<Resampling>({"resampling", QT_TRANSLATE_NOOP("Fields", "Resampling"),
                             QT_TRANSLATE_NOOP("Fields",
                                               "How values are found between the pixels of the raster. A palette "
                                               "always takes the nearest one.")},
                            look.resampling, resamplings, Resampling::Bilinear);
  look.tone.list(fields);
  common.list(fields);
}

_ptr_t<Layer> RasterLayerSettings::make(Map const& map, DocumentContext& context) const {
  auto const layer = SysUtility::make<RasterLayer>();
  common.applyTo(*layer);
  layer->setLook(look);
  open(*layer, toOpen(source, context), map, context);
  return layer;
}

void RasterLayerSettings::applyTo(RasterLayer& layer, Map const& map, DocumentContext& context) const {
  RasterSourceSettings const opened = toOpen(source, context);
  bool const readsAlike =
      opened == layer.source() && look.renderer.bands() == layer.look().renderer.bands() && layer.problem().isEmpty();
  layer.setLook(look);
  common.applyTo(layer);
  if (!readsAlike) open(layer, opened, map, context);
}

}  // namespace SysCarto
