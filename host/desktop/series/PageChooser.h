#pragma once

#include "SeriesView.h"

#include <QWidget>

class QComboBox;
class QLabel;

/// Below the page: which page of a series is shown, and others to go to, by their numbers, their names or a part of
/// these, and what could not be shown. Hidden where the document has no series.
class PageChooser final : public QWidget {
  Q_OBJECT

public:
  /// `series` is borrowed.
  PageChooser(SeriesView& series, QWidget* parent);

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  void follow();
  void say(QString const& sentence);
  void go(QString const& page);
  void goToTyped();

  SeriesView& series_;
  QComboBox* const pages_;
  QLabel* const count_;
  QLabel* const note_;
};
