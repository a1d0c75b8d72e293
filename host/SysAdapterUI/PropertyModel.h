#pragma once

#include "host/SysAdapterUI/FieldSource.h"
#include "host/SysAdapterUI/PropertyParts.h"

#include <SysAdapterUI/Export.h>

#include <QAbstractItemModel>

#include <functional>
#include <memory>
#include <vector>

namespace SysAdapterUI {

/// The fields of a source as a tree: captions in the first column, values in the second. Rectangles and points have a
/// row for each of their numbers, measured from one of nine places of the rectangle. A value that was refused stays in
/// its row, with the reason, until another one is taken or the source is shown anew.
class SYSADAPTERUI_EXPORT PropertyModel final : public QAbstractItemModel {
  Q_OBJECT

public:
  enum Column { CaptionColumn, ValueColumn };
  enum Role { ProblemRole = Qt::UserRole, HelpRole, PathRole, NameRole };  // a name that no other row has

  /// What a row stands for.
  struct Row {
    SysUtility::SheetField const* field;
    QStringList path;
    PropertyPart part;
    bool isEntry;  ///< of a list

    bool isList() const { return part == PropertyPart::Field && field->info.kind == SysUtility::FieldInfo::Kind::List; }
  };

  explicit PropertyModel(QObject* parent);
  ~PropertyModel() override;

  /// Borrowed; null shows nothing.
  void setSource(FieldSource* source);

  /// Shows the values as they are now. Rows stay where the fields are the same.
  void refresh();

  Row row(QModelIndex const& index) const;
  QModelIndex indexOf(QStringList const& path) const;

  /// Names that a person may want to choose from for the text of a row; none for other rows.
  QStringList suggestions(QModelIndex const& index) const;

  /// As the source lets a person choose the text of a row; empty where it does not.
  std::function<std::optional<QString>(QString const& now, QWidget* parent)> chooserOf(QModelIndex const& index) const;

  /// Takes a value as a document has it. False, with `ProblemRole` saying why, where it is refused; `shown` is what
  /// then stays in the row. The rows follow once the caller is done, since they may be others then.
  bool take(QModelIndex const& index, QJsonValue const& value, QString const& shown);

  /// Drops a value that was refused.
  void forget(QModelIndex const& index);

  /// Whether the row is that of a symbol, which is chosen as a whole.
  bool isSymbol(QModelIndex const& index) const;

  // Entries of lists; `index` is the list or one of its entries. A new one comes last, and is answered.

  QModelIndex addEntry(QModelIndex const& index);
  /// The copy comes after it, and is answered; the entry itself where that can't be.
  QModelIndex duplicateEntry(QModelIndex const& index);
  void removeEntry(QModelIndex const& index);
  /// Up for −1, down for 1. Answers where it is then.
  QModelIndex moveEntry(QModelIndex const& index, int by);

  QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
  QModelIndex parent(QModelIndex const& index) const override;
  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& = {}) const override { return 2; }
  Qt::ItemFlags flags(QModelIndex const& index) const override;
  QVariant data(QModelIndex const& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  /// Check boxes: flags, and objects that may be missing.
  bool setData(QModelIndex const& index, QVariant const& value, int role) override;

private:
  struct Node;
  static QString nameOf(Node const& node);
  Node& nodeAt(QModelIndex const& index) const;
  QModelIndex indexOf(Node const& node, int column) const;
  void build(Node& parent, QVector<SysUtility::SheetField> const& fields);
  void addParts(Node& node);
  QVariant display(Node const& node) const;
  QVariant check(Node const& node) const;
  QJsonValue valueOf(Node const& node) const;
  bool isMixed(Node const& node) const;
  QModelIndex rearrange(Node& entry, int place, std::function<void(QJsonArray& list)> const& change);
  bool change(Node& node, SysUtility::NewValue const& value, QString const& shown, QString const& joining);
  void refreshSoon();

  FieldSource* source_ = nullptr;
  bool isStale_ = false;
  int anchor_ = 6;  // of nine, row by row from the upper left: the lower left corner
  std::unique_ptr<Node> root_;
};

}  // namespace SysAdapterUI
