#pragma once

#include <SysUI/TrackerCancel.h>

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

/// Processes of this program, each drawing some of the pages.
class PageJobs {
public:
  explicit PageJobs(SysUtility::_ptr_t<SysUI::TrackerCancel> cancel);

  std::function<void(QString const& path)> onWritten;  ///< a page is in its file
  std::function<void(QString const& line)> onProblem;  ///< as the process tells it

  /// Starts one for each list of arguments, and comes back when all have ended; an interrupt ends them. Whether all did
  /// what they were asked.
  bool run(QList<QStringList> const& arguments);

private:
  SysUtility::_ptr_t<SysUI::TrackerCancel> const cancel_;
};
