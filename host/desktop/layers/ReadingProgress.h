#pragma once

#include "host/SysCarto/layers/WatchedReading.h"

#include <QElapsedTimer>
#include <QProgressDialog>

/// Shows how far data are read, and lets a person have enough of it. Nothing is seen of it where that is quick. Input
/// waits until it is seen, since before it would reach the window.
class ReadingProgress {
public:
  explicit ReadingProgress(QWidget& parent);

  /// To be handed to what reads; lives no longer than this.
  SysCarto::ReadProgress watch();

  bool wasStopped() const { return dialog_.wasCanceled(); }

private:
  bool goesOn(qint64 read, qint64 count);

  QProgressDialog dialog_;
  QElapsedTimer sinceLook_;  // of all sources together
};
