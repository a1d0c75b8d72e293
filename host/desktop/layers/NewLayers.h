#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/layers/FeatureReader.h"

#include <SysCarto/Layer.h>

#include <QCoreApplication>

#include <vector>

namespace SysCarto {
class MapDocument;
}

/// A layer that a map may be given.
struct NewLayer {
  SysCarto::SourceSettings source;
  SysCarto::GeometryKind kind;
  QString name;
  QString coordinateSystem;  ///< that of the source; empty where it is not known
};

/// How a layer of data becomes one of a map.
struct NewLayers {
  Q_DECLARE_TR_FUNCTIONS(NewLayers)

public:
  /// One for each layer of the file that has geometries, or one for each kind of geometry of a layer that mixes them,
  /// since a symbol draws one kind.
  static std::vector<NewLayer> of(SysCarto::DataFile const& file);
  static std::vector<NewLayer> of(SysCarto::DataFile const& file, SysCarto::LayerDescription const& layer);

  /// The condition that admits geometries of a kind: areas, lines or points, collections counting as areas.
  static QString conditionOf(SysCarto::GeometryKind kind);

  /// Adds them to the focus map as one step of the history: above a layer of it, or where that is empty, points above
  /// lines above areas. A map without layers shows what the first of them holds, in its coordinate system where it has
  /// none itself; on a page without a map, a data frame that fills the margins comes first. Answers a sentence, with
  /// nothing changed, or an empty text, also where `progress` wanted no more; what could not be added beside others, or
  /// else is to be said, is added to `warnings`.
  static QString add(SysCarto::MapDocument const& document, std::vector<NewLayer> const& wanted,
                     SysUtility::_ptr_t<SysCarto::Layer> const& below, SysCarto::ReadProgress const& progress,
                     QStringList& warnings);

  /// Adds what a text names: a file with all of its layers, or FILE|LAYER.
  static QString addNamed(SysCarto::MapDocument const& document, QString const& text, QStringList& warnings);
};
