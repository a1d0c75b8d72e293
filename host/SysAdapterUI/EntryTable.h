#pragma once

#include "host/SysAdapterUI/EntryModel.h"

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QPushButton;
class QTableView;

namespace SysAdapterUI {

class PropertySheet;

/// The list of a property sheet as a table, with buttons to add, copy, remove and move its entries. It is hidden where
/// there is no such list.
class SYSADAPTERUI_EXPORT EntryTable final : public QWidget {
  Q_OBJECT

public:
  /// How entries come and change where that takes more than a new one and its cells; empty where it does not.
  struct Ways {
    std::function<void()> add;
    std::function<void(int row)> change;
  };

  /// Borrowed. A symbol that is to be chosen is told by the sheet.
  EntryTable(PropertySheet& sheet, Ways const& ways, QWidget* parent);
  ~EntryTable() override;

  EntryModel& entries() { return *entries_; }
  QTableView& view() { return *view_; }

  bool isEditing() const;

  /// Takes the value that is being edited.
  void finish();

private:
  enum Button { Add, Change, Duplicate, Remove, Up, Down, count };

  void press(Button button);
  void settle();
  void showState();
  void fitColumns();
  int currentRow() const;

  PropertySheet& sheet_;
  Ways const ways_;
  EntryModel* const entries_;
  QTableView* const view_;
  QLabel* const told_;
  std::array<QPushButton*, count> press_{};
  int row_ = -1, column_ = 0;  // before the rows became others
};

}  // namespace SysAdapterUI
