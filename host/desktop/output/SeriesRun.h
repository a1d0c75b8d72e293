#pragma once

#include "host/desktop/vector/VectorExport.h"

#include <QCoreApplication>

class SeriesView;

/// All pages of a series on their way elsewhere, one after the other. What the views showed before is shown again in
/// the end.
class SeriesRun final {
  Q_DECLARE_TR_FUNCTIONS(SeriesRun)

public:
  /// Told the page that is being drawn.
  using Tell = std::function<void(QString const& what)>;

  /// The series is borrowed.
  SeriesRun(SeriesView& series, Tell tell);
  ~SeriesRun();
  SeriesRun(SeriesRun const&) = delete;
  SeriesRun& operator=(SeriesRun const&) = delete;

  /// Null where there is no series.
  NextPage next();

  /// What is wrong, and with it which pages could not be shown.
  QString withProblems(QString const& problem) const;

private:
  SeriesView& series_;
  Tell const tell_;
  int const before_;  // the page that was shown
  QStringList problems_;
};
