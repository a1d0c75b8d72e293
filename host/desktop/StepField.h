#pragma once

#include "host/SysCarto/document/Editable.h"

#include <QString>
#include <QStringList>

/// A field of something in a document as a step writes it: WHAT/FIELD…, and behind a colon a value for it.
struct StepField {
  QString what;
  QStringList path;
  QString value;  ///< null without a colon

  static StepField of(QString const& text);

  /// Gives the value to the field of all of them. Answers a sentence where it can't be taken, or is a condition that
  /// the data of a layer don't understand; what else is to be said is added to `warnings`.
  QString giveTo(SysCarto::MapDocument const& document, SysCarto::Editable::List const& things,
                 QStringList& warnings) const;
};
