#pragma once

#include "Files.h"
#include "Pictures.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysDisplay/SimpleFillSymbol.h>

// What the tests of layers share.

inline QString sample(QString const& name) { return QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/data/") + name; }

/// The path of a file in a folder that the test may fill.
inline QString written(QTemporaryDir const& folder, QString const& name, QByteArray const& content) {
  return put(folder.filePath(name), content);
}

inline QByteArray feature(QByteArray const& geometry, QByteArray const& name) {
  return R"({"type":"Feature","properties":{"name":")" + name + R"("},"geometry":)" + geometry + "}";
}

inline QByteArray collection(QByteArrayList const& features) {
  return R"({"type":"FeatureCollection","features":[)" + features.join(',') + "]}";
}

inline QByteArray geoJson(QByteArray const& geometry, QByteArray const& name = "A") {
  return collection({feature(geometry, name)});
}

struct OpenedLayer {
  _ptr_t<SysCarto::VectorLayer> layer;
  QString error;
  QStringList warnings;

  SysCarto::FeatureStore const& features() const { return layer->features(); }
};

inline OpenedLayer opened(SysCarto::SourceSettings const& source, QString const& mapSystem,
                          _ptr_t<SysDisplay::Symbol> symbol = nullptr, SysCarto::LabelSettings const& labels = {},
                          SysCarto::ReadDepth depth = SysCarto::ReadDepth::Features) {
  OpenedLayer result{make<SysCarto::VectorLayer>(SysCarto::makeSimpleRenderer(symbol)), {}, {}};
  result.layer->setLabelSettings(labels);
  result.error = result.layer->open(source, mapSystem, result.warnings, {}, depth);
  return result;
}

/// A layer of GeoJSON, in a coordinate system of its own if one is given.
inline OpenedLayer openedJson(QByteArray const& json, QString const& mapSystem, _ptr_t<SysDisplay::Symbol> symbol = {},
                              SysCarto::LabelSettings const& labels = {}, QString const& system = {}) {
  QTemporaryDir const folder;
  return opened({written(folder, "a.geojson", json), {}, {}, system}, mapSystem, symbol, labels);
}

inline Sheet shown(SysCarto::Box const& box, QSize const& sizePx, double pageScale = 1) {
  return {SysGeometry::Envelope(box.xmin, box.ymin, box.xmax, box.ymax), sizePx, pageScale};
}
