#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/layers/FeatureReader.h"

#include <SysCarto/Layer.h>

#include <QCoreApplication>

#include <vector>

namespace SysCarto {
class MapDocument;
}

/// A layer of data that a map may be given.
struct NewLayer {
  SysCarto::SourceSettings source;
  SysCarto::LayerDescription description;
};

/// How a layer of data becomes one of a map: as in a new map that is made of data.
struct NewLayers {
  Q_DECLARE_TR_FUNCTIONS(NewLayers)

public:
  /// One for each layer of the file that has geometries.
  static std::vector<NewLayer> of(SysCarto::DataFile const& file);
  static std::vector<NewLayer> of(SysCarto::DataFile const& file, SysCarto::LayerDescription const& layer);

  /// Adds them to the focus map as one step of the history: above a layer of it, or where that is empty, among the
  /// others by `DrawingOrder`. Each looks as a new map would show it, in colours that the map has not yet. A map
  /// without layers shows all that they hold, in a coordinate system that suits it where it has none itself; on a page
  /// without a map, a data frame that fills the margins comes first. Answers a sentence, with nothing changed, or an
  /// empty text, also where `progress` wanted no more; what could not be added beside others, or else is to be said, is
  /// added to `warnings`.
  static QString add(SysCarto::MapDocument const& document, std::vector<NewLayer> const& wanted,
                     SysUtility::_ptr_t<SysCarto::Layer> const& below, SysCarto::ReadProgress const& progress,
                     QStringList& warnings);

  /// Adds what a text names: a file with all of its layers, or FILE|LAYER; connection:NAME in place of a file.
  static QString addNamed(SysCarto::MapDocument const& document, QString const& text, QStringList& warnings);
};
