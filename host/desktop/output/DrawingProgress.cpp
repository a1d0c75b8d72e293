#include "DrawingProgress.h"

#include "host/desktop/DocumentViews.h"

#include <QApplication>
#include <QThread>

namespace {

constexpr int patienceMs = 400;  // before it is shown
constexpr int betweenLooksMs = 20;

}  // namespace

DrawingProgress::DrawingProgress(QString const& what, DocumentViews& views, QWidget& parent)
    : views_(views), dialog_(what, QCoreApplication::translate("DrawingProgress", "Cancel"), 0, 0, &parent) {
  dialog_.setWindowModality(Qt::WindowModal);
  dialog_.setMinimumDuration(patienceMs);
  dialog_.setAutoReset(false);
  dialog_.setAutoClose(false);
  views_.setPaused(true);
  sinceLook_.start();
}

DrawingProgress::~DrawingProgress() { views_.setPaused(false); }

bool DrawingProgress::IsCanced() const {
  if (sinceLook_.elapsed() < betweenLooksMs || QThread::currentThread() != qApp->thread()) return dialog_.wasCanceled();
  dialog_.setValue(0);  // makes it seen after a while
  // Only what is modal keeps input from the window, where it could change the document meanwhile.
  QApplication::processEvents(dialog_.isVisible() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
  sinceLook_.restart();
  return dialog_.wasCanceled();
}
