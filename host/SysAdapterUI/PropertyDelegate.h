#pragma once

#include <QStyledItemDelegate>

namespace SysAdapterUI {

class PropertyModel;

/// Makes the editor that fits the kind of a field, and hands what was entered to the model. The view's model is a proxy
/// of a `PropertyModel`.
class PropertyDelegate final : public QStyledItemDelegate {
  Q_OBJECT

public:
  explicit PropertyDelegate(QObject* parent);
  ~PropertyDelegate() override;

  QWidget* createEditor(QWidget* parent, QStyleOptionViewItem const& option, QModelIndex const& index) const override;
  void setEditorData(QWidget* editor, QModelIndex const& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, QModelIndex const& index) const override;
  void updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                            QModelIndex const& index) const override;
  QSize sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const override;

signals:
  /// A value begins to be edited.
  void editing() const;
};

}  // namespace SysAdapterUI
