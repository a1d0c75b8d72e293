#pragma once

#include "host/SysCarto/layers/WatchedReading.h"
#include "host/SysCarto/maps/LayerTree.h"

#include <QByteArray>
#include <QJsonArray>

namespace SysCarto {

/// Layers and groups on their way to another place, as text: what a document stores of them, with absolute paths.
struct SYSCARTO_EXPORT LayerClip {
  static constexpr int maxBytes = 64 * 1024 * 1024;

  /// Without a text, and with a sentence in `problem`, where a layer can't be stored or they are too large.
  static QByteArray of(std::vector<LayerEntry> const& entries, QString& problem);

  /// Whether a text means to be one, whatever else may be wrong with it.
  static bool isOne(QByteArray const& text);

  /// New layers with their data read for the map, in new groups; none, with a sentence in `problem`, where the text is
  /// not as `of` makes it. What could not be read of their data is told to `warnings`.
  static std::vector<LayerEntry> read(QByteArray const& text, Map const& map, QString& problem, QStringList& warnings);

  /// Layers of what a document would store of them, with absolute paths; as `read`. None, and no problem, where
  /// `progress` wants no more.
  static std::vector<LayerEntry> make(QJsonArray const& layers, Map const& map, QString& problem, QStringList& warnings,
                                      ReadProgress const& progress);

  /// The same without a text.
  static std::vector<LayerEntry> copy(std::vector<LayerEntry> const& entries, Map const& map, QString& problem,
                                      QStringList& warnings);
};

}  // namespace SysCarto
