#pragma once

#include "LayerActions.h"

/// A step of `plotvane run` that names layers and is written NAME=VALUE.
struct LayerStep {
  QString name;
  QString value;  ///< as people are told
  bool (*isValue)(QString const& value);
  LayerOutcome (*run)(SysCarto::MapDocument const& document, QString const& value);

  static QVector<LayerStep> const& all();
};
