#pragma once

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/labels/LabelSettings.h"

#include <QCoreApplication>

#include <optional>

/// Labels of single features that a person has put somewhere, or hidden.
struct PinnedLabels {
  Q_DECLARE_TR_FUNCTIONS(PinnedLabels)

public:
  /// Reads `X,Y` or `X,Y,ANGLE` in map units and degrees, `hidden`, or `free` for a label that is placed as others are.
  /// Nothing for a text that is none of these.
  static std::optional<PinnedLabels> read(QString const& key, QString const& text);

  SysCarto::PinnedLabel label;
  bool isFree = false;

  /// Gives it to a layer, in one step of the history. Answers a sentence, with nothing changed, or an empty text.
  QString giveTo(SysCarto::MapDocument const& document, SysCarto::Editable::Pointer const& thing,
                 QStringList& warnings) const;
};
