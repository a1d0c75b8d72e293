#include "LayerData.h"

#include "VectorLayer.h"

#include "host/SysCarto/layers/raster/RasterLayer.h"

namespace SysCarto {

SysGeometry::Box boxOf(Layer const& layer) {
  if (auto const* const vector = dynamic_cast<VectorLayer const*>(&layer)) return vector->extent();
  auto const* const raster = dynamic_cast<RasterLayer const*>(&layer);
  return raster ? raster->box() : SysGeometry::Box();
}

QString problemOf(Layer const& layer) {
  if (auto const* const vector = dynamic_cast<VectorLayer const*>(&layer)) return vector->problem();
  auto const* const raster = dynamic_cast<RasterLayer const*>(&layer);
  return raster ? raster->problem() : QString();
}

std::optional<double> readShareOf(Layer const& layer) {
  auto const* const vector = dynamic_cast<VectorLayer const*>(&layer);
  return vector ? vector->readShare() : std::nullopt;
}

QString failureOf(Layer const& layer) {
  auto const* const vector = dynamic_cast<VectorLayer const*>(&layer);
  return vector ? vector->failure() : problemOf(layer);
}

QStringList warningsOf(Layer const& layer) {
  auto const* const vector = dynamic_cast<VectorLayer const*>(&layer);
  return vector ? vector->warnings() : QStringList();
}

QStringList filesOf(Layer const& layer) {
  QStringList files;
  if (auto const* const vector = dynamic_cast<VectorLayer const*>(&layer)) {
    if (vector->source().data != SourceSettings::Data::File) return files;
    if (vector->source().connection.isEmpty()) files << vector->source().file;
    for (TableJoin const& join : vector->source().joins) files << join.file;
  }
  if (auto const* const raster = dynamic_cast<RasterLayer const*>(&layer)) files << raster->source().file;
  return files;
}

QString readAgain(Layer& layer, QString const& mapSystem, QStringList& warnings) {
  if (auto* const vector = dynamic_cast<VectorLayer*>(&layer))
    return vector->open(vector->source(), mapSystem, warnings);
  auto* const raster = dynamic_cast<RasterLayer*>(&layer);
  return raster ? raster->open(raster->source(), mapSystem) : QString();
}

}  // namespace SysCarto
