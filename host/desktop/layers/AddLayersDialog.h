#pragma once

#include "FileDescriptions.h"
#include "NewLayers.h"

#include <QDialog>

#include <array>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

/// Lists the layers of files, so that a person chooses those that are added. Files are read while it is open; of a
/// table it shows which columns place the rows, and lets others be chosen.
class AddLayersDialog final : public QDialog {
  Q_OBJECT

public:
  AddLayersDialog(QStringList const& files, QWidget* parent);
  ~AddLayersDialog() override;

  /// The layers that are checked, in the order of their rows.
  std::vector<NewLayer> chosen() const;

private:
  // A layer of a file, with its row.
  struct Entry {
    SysCarto::DataFile file;  // without its layers
    bool isOnlyLayer;
    SysCarto::LayerDescription layer;
    QTreeWidgetItem* row;
  };

  void buildColumns();
  void addFile(SysCarto::DataFile const& file);
  void measured(SysCarto::SourceSettings const& source, SysCarto::LayerDescription const& layer, QString const& error);
  void show(Entry const& entry);
  void showColumns();
  void takeColumns();
  static bool isChecked(Entry const& entry);
  void showState();
  Entry* current();

  std::vector<Entry> entries_;
  QTreeWidget* rows_;
  QWidget* columns_;
  std::array<QComboBox*, 3> boxes_;  // x, y, geometry
  QLabel* state_;
  QPushButton* add_;
  FileDescriptions files_;
  QStringList waiting_;  // files that are not described yet
};
