#pragma once

#include "LayerSettings.h"

#include "host/SysCarto/layers/raster/RasterLayer.h"

namespace SysCarto {

/// What a document stores of a raster layer. Its pixels are not: they are read when the layer is drawn.
struct RasterLayerSettings {
  RasterSourceSettings source;  ///< the file as it is stored
  RasterLook look;
  CommonLayerSettings common;

  static RasterLayerSettings of(RasterLayer const& layer, DocumentContext const& context);
  void list(SysUtility::Fields& fields);

  /// A layer of the map, with its source opened. What could not be read is told to the context.
  SysUtility::_ptr_t<Layer> make(Map const& map, DocumentContext& context) const;

  /// Changes a layer of the map. Its source is opened anew only where that makes a difference.
  void applyTo(RasterLayer& layer, Map const& map, DocumentContext& context) const;
};

}  // namespace SysCarto
