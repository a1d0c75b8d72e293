#pragma once

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class GDALDataset;
class OGRLayer;

namespace SysCarto {

class DerivedLayer;
struct SourceSettings;

/// A vector layer in a local file, or a table that a connection leads to, open for reading.
///
/// Documents come from strangers, so a source is a plain file and nothing else: no network, no virtual file system, no
/// directory, and only formats that can't name further files, but for the companions of theirs. Opening leaves nothing
/// beside the file.
class SYSCARTO_EXPORT DataSource {
public:
  /// `path` is absolute; an empty `layerName` takes the first layer. On a failure an empty pointer, and `error` is a
  /// sentence that names file and layer.
  static std::unique_ptr<DataSource> open(QString const& path, QString const& layerName, QString& error);

  /// With the places that columns of a table give, and with the fields of joined tables. Without those of a table that
  /// can't be joined: `joinProblem` then says why.
  static std::unique_ptr<DataSource> open(SourceSettings const& source, QString& error);

  /// Why a document's source may not be opened at all, whatever lies there; empty where it may.
  static QString refusal(QString const& path);

  ~DataSource();
  OGRLayer& layer() const { return *layer_; }

  QString const& joinProblem() const { return joinProblem_; }

  /// What GDAL said against a file that it opened all the same; empty for most.
  QString const& complaint() const { return complaint_; }

  /// What is to be said of the features that were read so far, as sentences: which found no row in a joined table.
  QStringList notes() const;

private:
  struct Opened;
  explicit DataSource(std::unique_ptr<Opened> opened);

  QString take(SourceSettings const& source);
  QString takeOfFile(GDALDataset& dataset, SourceSettings const& source);
  void put(std::unique_ptr<DerivedLayer> layer);

  std::unique_ptr<Opened> opened_;
  OGRLayer* layer_;  // what is read
  QString joinProblem_;
  QString complaint_;
};

}  // namespace SysCarto
