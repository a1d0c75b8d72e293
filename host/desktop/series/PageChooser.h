#pragma once

#include "SeriesView.h"

#include <QWidget>

class QComboBox;
class QLabel;
class NoticeBar;

/// Below the page: which page of a series is shown, and others to go to, by their numbers, their names or a part of
/// these. Hidden where the document has no series.
class PageChooser final : public QWidget {
  Q_OBJECT

public:
  /// `series` is borrowed, and so is `notice`, which says what could not be shown.
  PageChooser(SeriesView& series, NoticeBar& notice, QWidget* parent);

private:
  void follow();
  void go(QString const& page);
  void goToTyped();

  SeriesView& series_;
  NoticeBar& notice_;
  QComboBox* const pages_;
  QLabel* const count_;
};
