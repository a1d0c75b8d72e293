#pragma once

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/layers/Classify.h"

#include <QCoreApplication>

class QWidget;

/// Classes for a layer, made of the values of a field.
struct LayerClasses {
  Q_DECLARE_TR_FUNCTIONS(LayerClasses)

public:
  /// Reads METHOD and what may follow it, each after a comma: `classes=7`, `ramp=YlGnBu`, `reversed`, `sorted`,
  /// `sizes=4-20` in points, `breaks=10;100`. Answers a problem without a full stop, or an empty text.
  static QString read(QString const& text, SysCarto::ClassifySettings& settings);

  /// Gives the layer other classes in one step of the history. Answers a sentence, with nothing changed, or an empty
  /// text; `warnings` as of `Editable::set`.
  static QString give(SysCarto::MapDocument const& document, SysCarto::Editable::Pointer const& layer,
                      SysCarto::RendererSettings const& renderer, QStringList& warnings);

  /// The same with classes as they are wanted. What is neither a problem nor a warning is not told: `classify` tells
  /// it.
  static QString make(SysCarto::MapDocument const& document, SysCarto::Editable::Pointer const& layer,
                      SysCarto::ClassifySettings const& wanted, QStringList& warnings);

  /// Asks the person at the window for classes, and gives them to the layer. Answers what is to be told, if anything.
  static QString ask(SysCarto::MapDocument const& document, SysCarto::Editable::Pointer const& layer, QWidget* parent);
};
