#pragma once

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QRectF>
#include <QStringList>

/// A document whose page, and what lies on it, is taken for a new map, which goes into its largest data frame.
class MapTemplate {
  Q_DECLARE_TR_FUNCTIONS(MapTemplate)

public:
  /// False, with a sentence in `problem`, where it can't be read or has no data frame.
  bool read(QString const& file, QString& problem);

  /// In centimetres of the page.
  QRectF const& frame() const { return frame_; }

  /// The document with the map, `entries` in the legends of it, and its title. That goes to the text that is called
  /// Title, or else to the largest one, unless a text names the map by a placeholder. What placeholders say of the
  /// template's map they say of the new one.
  QJsonObject filled(QJsonObject const& map, QJsonArray const& entries, QString const& title);

  /// The texts that stay as they are, after it was filled.
  QStringList const& keptTexts() const { return keptTexts_; }

private:
  void fillText(QJsonObject& element, bool isTitle, QString const& title);

  QJsonObject json_;
  int map_ = -1;
  QString mapName_;
  QRectF frame_;
  QStringList keptTexts_;
};
