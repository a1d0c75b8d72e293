#pragma once

#include "host/SysCarto/projection/GlobeBox.h"

#include <SysAdapterUI/Export.h>

#include <QDialog>
#include <QStringList>
#include <QTimer>

#include <optional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QTreeView;

namespace SysAdapterUI {

class SystemModel;
class WorldMap;

/// What a choice of a coordinate system starts from.
struct SystemChoice {
  QString now;                ///< the definition that there is
  QString none;               ///< what an empty one means, for people
  QStringList inUse;          ///< definitions that the document has elsewhere
  SysCarto::GlobeBox extent;  ///< of the map; of nothing where it isn't known
};

/// A dialog in which a person looks for a coordinate system by name, code or area, sees where it is meant to be used
/// and what it is, or writes a definition.
class SYSADAPTERUI_EXPORT SystemChooser final : public QDialog {
  Q_OBJECT

public:
  SystemChooser(SystemChoice const& choice, QWidget* parent);
  ~SystemChooser() override;

  QString definition() const;

  /// Empty where nothing is chosen.
  static std::optional<QString> choose(SystemChoice const& choice, QWidget* parent);

  void accept() override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  QWidget* buildSearch();
  QWidget* buildDefinition();
  QWidget* buildFacts();
  void search();
  void takeChosen();
  void showFacts();
  void select(int row);

  SystemChoice const choice_;
  SystemModel* model_;
  QTabWidget* tabs_;
  QLineEdit* search_;
  QComboBox* kind_;
  QCheckBox* deprecated_;
  QTreeView* list_;
  QLabel* count_;
  QPlainTextEdit* own_;
  QLabel* problem_;
  WorldMap* world_;
  QLabel* facts_;
  QPlainTextEdit* wkt_;
  QPushButton* ok_ = nullptr;
  QTimer reading_;
  QTimer rest_;  // after the last key
};

}  // namespace SysAdapterUI
