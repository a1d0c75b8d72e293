#pragma once

#include <SysCarto/Export.h>

#include <QString>

#include <memory>

class GDALDataset;
class OGRLayer;

namespace SysCarto {

/// A vector layer in a local file, open for reading.
///
/// Documents come from strangers, so a source is a plain file and nothing else: no network, no virtual file system, no
/// directory, and only formats that can't name further files. Opening leaves nothing beside the file.
class SYSCARTO_EXPORT DataSource {
public:
  /// `path` is absolute; an empty `layerName` takes the first layer. On a failure an empty pointer, and `error` is a
  /// sentence that names file and layer.
  static std::unique_ptr<DataSource> open(QString const& path, QString const& layerName, QString& error);

  /// Why a document's source may not be opened at all, whatever lies there; empty where it may.
  static QString refusal(QString const& path);

  ~DataSource();
  OGRLayer& layer() const { return *layer_; }

private:
  DataSource(GDALDataset* dataset, OGRLayer* layer);

  GDALDataset* dataset_;
  OGRLayer* layer_;
};

}  // namespace SysCarto
