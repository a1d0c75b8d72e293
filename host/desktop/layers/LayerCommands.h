#pragma once

#include "LayerActions.h"

#include <QObject>

#include <functional>

namespace SysAdapterUI {
class ContentsTree;
}
class ActionTable;
class HostCommands;
class LayerSheet;
class Workbench;

/// The commands that work on the rows chosen in the contents, and what is dragged and renamed there.
class LayerCommands final : public QObject {
  Q_OBJECT

public:
  using Rows = LayerActions::Rows;

  /// `bench` is borrowed, and need not be ready before the first command is clicked.
  explicit LayerCommands(Workbench& bench);
  ~LayerCommands() override;

  void addTo(HostCommands& host);

  /// Both are borrowed; without a tree nothing is chosen. It has the keys and, for each row, the menu of the commands.
  void setTree(SysAdapterUI::ContentsTree& tree, ActionTable& actions);

  Rows chosen() const;

  /// Where something new is to lie: above what is chosen, or on top of the focus map; without a map where none is.
  SysCarto::LayerPlace placeForNew() const;

  /// Takes over what was done: tells its warnings and chooses its rows. Answers its problem.
  QString take(LayerOutcome const& outcome);

  // Of a value in the sheet of a layer.
  bool isEditing() const;
  void finishTyping();

signals:
  void told(QString const& sentence);

private:
  friend struct LayerCommand;
  LayerOutcome askForRepair(Rows const& rows);
  LayerOutcome focus(Rows const& rows);
  LayerOutcome showSheet(Rows const& rows);
  void addOpacityTo(ActionTable& actions);

  Workbench& bench_;
  SysAdapterUI::ContentsTree* tree_ = nullptr;
  ActionTable* actions_ = nullptr;
  LayerSheet* sheet_ = nullptr;  // of the window, once it was shown
};
