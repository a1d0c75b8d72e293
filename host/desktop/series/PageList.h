#pragma once

#include "SeriesView.h"

#include <QAbstractListModel>

/// The pages of a series as a list for people: first the document as it is stored, then each page with its number and
/// its name. A row is the number of its page.
class PageList final : public QAbstractListModel {
  Q_OBJECT

public:
  /// `series` is borrowed.
  explicit PageList(SeriesView& series, QObject* parent);

  int rowCount(QModelIndex const& parent = {}) const override;
  QVariant data(QModelIndex const& index, int role) const override;

private:
  SeriesView& series_;
};
