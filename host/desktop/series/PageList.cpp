#include "PageList.h"

PageList::PageList(SeriesView& series, QObject* parent) : QAbstractListModel(parent), series_(series) {
  connect(&series, &SeriesView::replaced, this, [this] {
    beginResetModel();
    endResetModel();
  });
}

int PageList::rowCount(QModelIndex const& parent) const {
  SeriesPages const* const pages = series_.pages();
  return parent.isValid() || !pages ? 0 : pages->count() + 1;
}

QVariant PageList::data(QModelIndex const& index, int role) const {
  SeriesPages const* const pages = series_.pages();
  if (!pages || index.row() > pages->count() || (role != Qt::DisplayRole && role != Qt::EditRole)) return QVariant();
  if (index.row() == 0) return tr("The document as it is stored");
  return QStringLiteral("%1  %2").arg(index.row()).arg(pages->name(index.row()));
}
