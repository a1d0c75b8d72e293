#pragma once

#include "host/SysCarto/layers/LayerEffects.h"
#include "host/SysCarto/layers/LayerGroup.h"
#include "host/SysCarto/layers/ScaleRange.h"

#include <SysCarto/FeatureLayer.h>

namespace SysCarto {

struct SYSCARTO_EXPORT LayerHost {
  // The limits as they were set: what a document stores.
  static ScaleRange scales(Layer const& layer);
  static ScaleRange scales(AnnotationProperties const& labels);

  /// The layer's own switch. It shows where those of its groups are on, too.
  static bool isSwitchedOn(Layer const& layer);

  static LayerGroups groups(Layer const& layer);
  static void setGroups(Layer& layer, LayerGroups const& groups);

  /// Effects are the business of the layer's own `Draw`.
  static LayerEffects effects(Layer const& layer);
  static void setEffects(Layer& layer, LayerEffects const& effects);

  /// Whom the data come from, as their makers ask to be named; may be empty.
  static QString credits(Layer const& layer);
  static void setCredits(Layer& layer, QString const& credits);

  /// The layers of the map that holds it, itself among them; none while no map does. Told by the map.
  static QList<Layer*> const& fellows(Layer const& layer);
  static void setFellows(Layer& layer, QList<Layer*> const& fellows);

  /// That of the map (`MapHost`), which tells it.
  static int labelEffort(Layer const& layer);
  static void setLabelEffort(Layer& layer, int effort);

  /// When what can be set of every layer was last changed outside the history's steps (`ChangeMark`).
  static quint64 lastChange(Layer const& layer);

  /// Differs from each number before it once the layer is drawn otherwise, for whoever keeps a picture of it.
  static quint64 look(Layer const& layer);
  static void changeLook(Layer const& layer);
  static quint64 nextLook();

  /// As the layer's own function; always as many as it has classes.
  static QVector<bool> classesWithin(Layer const& layer,
                                     SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation);
};

}  // namespace SysCarto
