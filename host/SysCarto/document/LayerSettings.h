#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysCarto/layers/LayerEffects.h"
#include "host/SysCarto/maps/LayerTree.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/Layer.h>

namespace SysCarto {

void listSource(SysUtility::Fields& fields, SourceSettings& source);

// A source with the paths that the document has, and with those to open. What may not be opened stays as it was
// written.
SourceSettings storedSource(SourceSettings source, DocumentContext const& context);
SourceSettings sourceToOpen(SourceSettings source, DocumentContext const& context);

// The path of a file as the document has it, and the one to open.
QString storedPath(QString const& file, DocumentContext const& context);
QString pathToOpen(QString const& stored, DocumentContext const& context);

/// What layers of all kinds have.
struct CommonLayerSettings {
  QString name;
  bool visible = true;
  double minScale = 0, maxScale = 0;  ///< scale denominators; 0 is no limit
  LayerEffects effects;
  QString credits;

  static CommonLayerSettings of(Layer const& layer);
  void list(SysUtility::Fields& fields);
  void applyTo(Layer& layer) const;
};

/// What a document stores of a layer of features. Its data are not: they are read when the layer is made.
struct LayerSettings {
  SourceSettings source;  ///< the file as it is stored: relative to the document where it keeps relative paths
  RendererSettings renderer;
  CommonLayerSettings common;
  LabelSettings labels;
  AnnotationSettings annotation;
  LabelObstacle obstacle = LabelObstacle::None;

  static LayerSettings of(VectorLayer const& layer, DocumentContext const& context);
  void list(SysUtility::Fields& fields);

  /// A layer of the map, with its source read. What could not be read is told to the context.
  SysUtility::_ptr_t<Layer> make(Map const& map, DocumentContext& context) const;

  /// Changes a layer of the map. Its source is read anew only where that makes a difference.
  void applyTo(VectorLayer& layer, Map const& map, DocumentContext& context) const;

private:
  void give(VectorLayer& layer) const;
};

/// What a document stores of a group of layers, beside these.
struct LayerGroupSettings {
  QString name;
  bool visible = true;

  static LayerGroupSettings of(LayerGroup const& group) { return {group.name(), group.isVisible()}; }
  void list(SysUtility::Fields& fields);
  void applyTo(LayerGroup& group) const;
};

/// A layer of `map`, or a group that lies in `depth` others, in the visitor's own object. Reading makes a new one.
SYSCARTO_EXPORT void listLayerEntry(SysUtility::Fields& fields, LayerEntry& entry, Map const& map,
                                    DocumentContext& context, int depth = 0);

/// A list of these.
void listLayerEntries(SysUtility::Fields& fields, std::vector<LayerEntry>& entries, Map const& map,
                      DocumentContext& context);

}  // namespace SysCarto
