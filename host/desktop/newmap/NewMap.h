#pragma once

#include "host/SysCarto/layers/WatchedReading.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace SysCarto {
class MapDocument;
}

/// What a person says of the map that is to be made of data; everything but the data may be left out.
struct NewMapRequest {
  /// A layer of a file, all layers of a file where none is named, or those of all files of a folder.
  struct Data {
    QString file, layer;

    /// FILE or FILE|LAYER, as people write it.
    static Data of(QString const& text) {
      return {text.section(QLatin1Char('|'), 0, 0), text.section(QLatin1Char('|'), 1)};
    }
  };

  QVector<Data> data;
  QString title;
  QString paper;                    ///< a form, as documents name it; A4 where it is empty
  std::optional<bool> isLandscape;  ///< the shape of the data decides where it is not said
  QString coordinateSystem;
  QString templateFile;  ///< a document whose page, and all that lies on it, is taken
  QString where;         ///< a condition on the features, for the layers that have its fields

  /// Why nothing can be made of it, whatever the data are: a sentence, or an empty text.
  QString problem() const;
};

struct NewMapResult {
  QString problem;          ///< a sentence, and the document is as it was; empty where the map was made
  QStringList explanation;  ///< what was chosen, and why
  QStringList warnings;     ///< sentences
  bool wasStopped = false;  ///< by the progress; the document is as it was
};

/// Makes the document a page with one map that shows all of the data, and what explains it. It has no file yet.
NewMapResult makeNewMap(NewMapRequest const& request, SysCarto::MapDocument& document,
                        SysCarto::ReadProgress const& progress = {});
