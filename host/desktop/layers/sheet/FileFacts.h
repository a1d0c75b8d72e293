#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"

#include <QWidget>

class FileDescriptions;
class QTreeWidget;

/// What is known of the file of a layer: format, size and date, and of the layer in it the count, extent, coordinate
/// system, fields and whatever else its format says. It is read on another thread.
class FileFacts final : public QWidget {
  Q_OBJECT

public:
  explicit FileFacts(QWidget* parent);
  ~FileFacts() override;

  /// Reads where it is another file or another state of it.
  void show(SysCarto::SourceSettings const& source);

  /// What the file says of its coordinate system, or why nothing is known of it, as a sentence.
  QString systemText() const;

  /// Of the file, as far as it was read.
  QStringList layerNames() const;

signals:
  void found();

private:
  void take(SysCarto::DataFile const& file);
  void takeMeasure(SysCarto::LayerDescription const& layer);
  void fill();

  QTreeWidget* const tree_;
  FileDescriptions* descriptions_ = nullptr;
  SysCarto::SourceSettings source_;
  QString stamp_;  // of what was read
  SysCarto::DataFile file_;
  SysCarto::LayerDescription layer_;
  QString system_;
};
