#pragma once

#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/layers/WatchedReading.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/FileStamp.h"

#include <SysCarto/Map.h>

#include <QJsonObject>
#include <QPointF>
#include <QVector>

#include <memory>
#include <optional>
#include <vector>

/// What lies at a place of a map: features of its visible layers, and values of rasters, the topmost first.
struct Identified {
  struct Feature {
    SysUtility::_ptr_t<SysCarto::Layer> layer;
    qint64 id;  ///< in the source; −1 of a raster, whose bands are the fields
    QString label;
    QVector<QPair<QString, QVariant>> fields;
  };

  SysUtility::_ptr_t<SysCarto::Map> map;
  QPointF place;                   ///< in map units
  std::optional<QPointF> degrees;  ///< longitude and latitude, where the map has a coordinate system
  QVector<Feature> features;
  bool isAll = true;     ///< false where more were found than are told of
  QStringList problems;  ///< sentences: what of that could not be read
};

/// The tables of layers that were asked for lately, one of each, open for as long as their sources and files stay as
/// they are: to open some files means to read them.
class OpenTables {
public:
  /// Null where it can't be opened, with a sentence in `problem`, or where `progress` wanted no more; good until the
  /// next call. One that could not be read is opened anew.
  SysCarto::FeatureTable const* of(SysUtility::_ptr_t<SysCarto::VectorLayer> const& layer,
                                   SysCarto::ReadProgress const& progress, QString& problem);
  void close() { tables_.clear(); }

private:
  struct Table {
    SysUtility::_ptr_t<SysCarto::VectorLayer> layer;  // held: another one never has its address
    SysCarto::SourceSettings source;                  // when it was opened, as is the stamp
    FileStamp stamp;
    std::unique_ptr<SysCarto::FeatureTable> table;
  };
  std::vector<Table> tables_;  // the oldest first
};

/// Points and lines count within `reach` map units, areas where the place is in them. Where `progress` wants no more
/// while a table is opened, the features of that layer have no fields.
Identified identify(SysUtility::_ptr_t<SysCarto::Map> const& map, QPointF const& place, double reach,
                    OpenTables& tables, SysCarto::ReadProgress const& progress = {});

QJsonObject jsonOf(Identified const& found);
