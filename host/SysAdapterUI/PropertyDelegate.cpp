#include "PropertyDelegate.h"

#include "PropertyEditors.h"
#include "PropertyModel.h"

#include <QAbstractProxyModel>
#include <QComboBox>

namespace SysAdapterUI {

namespace {

struct Place {
  PropertyModel& model;
  QModelIndex index;

  static Place of(QModelIndex const& shown) {
    auto const* const proxy = static_cast<QAbstractProxyModel const*>(shown.model());
    return {*static_cast<PropertyModel*>(proxy->sourceModel()), proxy->mapToSource(shown)};
  }
};

}  // namespace

PropertyDelegate::PropertyDelegate(QObject* parent) : QStyledItemDelegate(parent) {}
PropertyDelegate::~PropertyDelegate() = default;

QWidget* PropertyDelegate::createEditor(QWidget* parent, QStyleOptionViewItem const&, QModelIndex const& index) const {
  Place const place = Place::of(index);
  auto const row = place.model.row(place.index);
  FieldEditor* const editor = FieldEditor::create(row.field->info, place.model.suggestions(place.index),
                                                  place.model.chooserOf(place.index), parent);
  QString const caption = place.index.siblingAtColumn(PropertyModel::CaptionColumn).data().toString();
  editor->widget().setAccessibleName(caption);
  editor->widget().setAccessibleDescription(index.data(PropertyModel::HelpRole).toString());
  connect(editor, &FieldEditor::finished, this, [this, editor] {
    auto* const self = const_cast<PropertyDelegate*>(this);
    emit self->commitData(&editor->widget());
    emit self->closeEditor(&editor->widget());
  });
  emit editing();
  return &editor->widget();
}

void PropertyDelegate::setEditorData(QWidget* editor, QModelIndex const& index) const {
  Place const place = Place::of(index);
  FieldEditor* const field = FieldEditor::of(editor);
  if (field && !field->isChanged()) field->show(place.model.data(place.index, Qt::EditRole));
}

// What is as it was is no change: a mixed value would become the same one everywhere.
void PropertyDelegate::setModelData(QWidget* editor, QAbstractItemModel*, QModelIndex const& index) const {
  Place const place = Place::of(index);
  FieldEditor* const field = FieldEditor::of(editor);
  if (!field || !field->isChanged()) return;
  place.model.take(place.index, field->value(), field->text());
}

void PropertyDelegate::updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                                            QModelIndex const&) const {
  QRect place = option.rect;
  place.setHeight(std::max(place.height(), editor->sizeHint().height()));
  editor->setGeometry(place);
}

// With room for an editor.
QSize PropertyDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const& index) const {
  QSize size = QStyledItemDelegate::sizeHint(option, index);
  static int const editorHeight = QComboBox().sizeHint().height();
  size.setHeight(std::max(size.height(), editorHeight));
  return size;
}

}  // namespace SysAdapterUI
