#pragma once

#include "NewMap.h"

#include "host/desktop/layers/FileDescriptions.h"

#include <QDialog>
#include <QStringList>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QTreeWidget;

/// Asks for the data of a new map, and for what a person wants to say of it; what is left out is chosen.
class NewMapDialog final : public QDialog {
  Q_OBJECT

public:
  explicit NewMapDialog(QStringList const& files, QWidget* parent);
  ~NewMapDialog() override;

  NewMapRequest request() const;

private:
  void buildData();
  void addFile(QString const& file);
  void showFile(SysCarto::DataFile const& file);
  void chooseFiles();
  void chooseTemplate();
  void showState();
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

  FileDescriptions files_;
  QStringList waiting_;  // paths of files that are not described yet
  QTreeWidget* data_;    // files, and below each its layers once they are known
  QLineEdit *title_, *system_, *where_, *template_;
  QComboBox *paper_, *orientation_;
  QLabel* problem_;
  QDialogButtonBox* buttons_;
};
