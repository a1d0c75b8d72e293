#pragma once

#include "host/SysAdapterUI/PropertyModel.h"

#include <QSet>
#include <QWidget>

class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QToolButton;
class QTreeView;

namespace SysAdapterUI {

/// A form of the fields of a source: a tree with a search above it, and below it what the current field means, or why
/// its value was refused. A value is taken when it is finished.
class SYSADAPTERUI_EXPORT PropertySheet final : public QWidget {
  Q_OBJECT

public:
  explicit PropertySheet(QWidget* parent);
  ~PropertySheet() override;

  /// Borrowed, null for nothing. What was open stays open where it is there again.
  void show(FieldSource* source);
  void setTitle(QString const& title);

  /// Without title, search and the buttons for entries; lists that are no part of anything have a table elsewhere.
  void makePlain();

  /// Shows the values as they are now, unless one is being edited.
  void refresh();

  bool isEditing() const;

  /// Takes the value that is being edited.
  void finish();

  PropertyModel& model() { return *model_; }
  QTreeView& view() { return *view_; }

signals:
  /// A value begins to be edited.
  void editing();

  /// The symbol of this row is to be chosen among others.
  void symbolWanted(QModelIndex const& index);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void build();
  void showCurrent();
  void open(QModelIndex const& index);
  void keepState();
  void restoreState();
  QModelIndex current() const;
  void makeCurrent(QModelIndex const& index);

  PropertyModel* model_;
  QSortFilterProxyModel* filter_;
  QLabel* title_;
  QLineEdit* search_;
  QTreeView* view_;
  QLabel* note_;
  QToolButton *add_, *remove_, *up_, *down_;
  QSet<QString> open_;  // names of rows
  QString currentName_;
  QStringList wanted_;  // the path of the symbol that is to be chosen
  bool isPlain_ = false;
  bool isSearching_ = false;
  bool hadFocus_ = false;  // before the rows became others
};

}  // namespace SysAdapterUI
