#include "ReadingProgress.h"

#include "LayerAdding.h"

#include <QApplication>
#include <QLocale>

#include <algorithm>

namespace {

constexpr int patienceMs = 400;  // before it is shown
constexpr int betweenLooksMs = 30;
constexpr int thousandths = 1000;

}  // namespace

ReadingProgress::ReadingProgress(QWidget& parent)
    : dialog_(LayerAdding::tr("Reading…"), LayerAdding::tr("Cancel"), 0, 0, &parent) {
  dialog_.setWindowModality(Qt::WindowModal);
  dialog_.setMinimumDuration(patienceMs);
  dialog_.setAutoReset(false);
  dialog_.setAutoClose(false);
  sinceLook_.start();
}

SysCarto::ReadProgress ReadingProgress::watch() {
  return [this](qint64 read, qint64 count) { return goesOn(read, count); };
}

bool ReadingProgress::goesOn(qint64 read, qint64 count) {
  if (sinceLook_.elapsed() < betweenLooksMs) return !dialog_.wasCanceled();
  dialog_.setMaximum(count > 0 ? thousandths : 0);
  if (read > 0) dialog_.setLabelText(LayerAdding::tr("%1 features read").arg(QLocale().toString(read)));
  dialog_.setValue(count > 0 ? static_cast<int>(std::min<qint64>(thousandths - 1, thousandths * read / count)) : 0);
  // Only what is modal keeps input from the window, where it could open or change a document meanwhile.
  QApplication::processEvents(dialog_.isVisible() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
  sinceLook_.restart();
  return !dialog_.wasCanceled();
}
