#pragma once

#include "Files.h"
#include "Pictures.h"
#include "host/SysCarto/layers/VectorLayer.h"

#include <SysDisplay/SimpleFillSymbol.h>

#include <QTemporaryDir>

// What the tests of layers share.

inline QString sample(QString const& name) { return QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/data/") + name; }

/// The path of a file in a folder that the test may fill.
inline QString written(QTemporaryDir const& folder, QString const& name, QByteArray const& content) {
  return put(folder.filePath(name), content);
}

inline QByteArray geoJson(QByteArray const& geometry) {
  return R"({"type":"FeatureCollection","features":[{"type":"Feature","properties":{"name":"A"},"geometry":)" +
         geometry + "}]}";
}

struct OpenedLayer {
  _ptr_t<SysCarto::VectorLayer> layer;
  QString error;
  QStringList warnings;

  SysCarto::FeatureStore const& features() const { return layer->features(); }
};

inline OpenedLayer opened(SysCarto::SourceSettings const& source, QString const& mapSystem,
                          _ptr_t<SysDisplay::Symbol> symbol = nullptr, SysCarto::LabelSettings const& labels = {}) {
  if (!symbol) symbol = make<SysDisplay::SimpleFillSymbol>();
  OpenedLayer result{make<SysCarto::VectorLayer>(SysCarto::makeSimpleRenderer(symbol)), {}, {}};
  result.layer->setLabelSettings(labels);
  result.error = result.layer->open(source, mapSystem, result.warnings);
  return result;
}

inline Sheet shown(SysCarto::Box const& box, QSize const& sizePx, double pageScale = 1) {
  return {SysGeometry::Envelope(box.xmin, box.ymin, box.xmax, box.ymax), sizePx, pageScale};
}
