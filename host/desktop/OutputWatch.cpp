#include "OutputWatch.h"

#include "Console.h"
#include "Farewell.h"
#include "Subcommand.h"

#include "output/ImageFormat.h"
#include "output/ImageTarget.h"

#include "host/SysCarto/document/MapDocumentHost.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QLineEdit>
#include <QProgressBar>
#include <QUuid>

#include <cstdlib>

namespace {

constexpr int interruptMs = 50;

// What the plug-in draws into, beside the image's place: it is named by a UUID, and only this process knows which.
// Answers whether there was any.
bool removeWorkFiles(QString const& folder) {
  QString const real = QFileInfo(folder).canonicalFilePath();
  bool areThere = false;
  for (QFileInfo const& open : QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files)) {
    QFileInfo const file(open.symLinkTarget());
    bool const isOurs = file.absolutePath() == real && !QUuid::fromString(file.completeBaseName()).isNull();
    if (isOurs) QFile::remove(file.filePath());
    areThere = areThere || isOurs;
  }
  return areThere;
}

}  // namespace

OutputWatch::OutputWatch(SysCarto::MapDocument const& document) : document_(document) {
  qApp->installEventFilter(this);
  SysCarto::MapDocumentHost::takeLastFailure();
  connect(&interruptTimer_, &QTimer::timeout, this, &OutputWatch::endIfInterrupted);
}

// One that comes after the last look at it is not lost: from then on whoever took it before takes it again.
OutputWatch::~OutputWatch() {
  auto const cancel = interrupt_ ? interrupt_->cancel() : nullptr;
  interrupt_.reset();
  if (cancel && cancel->IsCanced()) end();
}

// The field by which a dialog is known as one that names an image to write.
bool OutputWatch::eventFilter(QObject* watched, QEvent* event) {
  // A drawing that takes no time for events tells its progress all the same.
  auto* const progress = event->type() == QEvent::Show ? qobject_cast<QProgressBar*>(watched) : nullptr;
  if (progress)
    connect(progress, &QProgressBar::valueChanged, this, &OutputWatch::endIfInterrupted, Qt::UniqueConnection);
  auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
  auto* const field = dialog ? dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit_OutputPath")) : nullptr;
  if (field) connect(dialog, &QDialog::accepted, this, [this, dialog, field] { take(*dialog, field->text()); });
  return false;
}

// The command asks for the dialog's result only after this.
void OutputWatch::take(QDialog& dialog, QString const& path) {
  path_ = path;
  if (path_.isEmpty()) return;  // the command tells that itself
  ImageTarget const target(path_, ImageFormat::writtenAt(path_));
  refusal_ = target.checkPlace();
  if (refusal_.isEmpty()) refusal_ = target.checkAgainst(document_);
  if (!refusal_.isEmpty()) return dialog.setResult(QDialog::Rejected);
  endIfInterrupted();
  before_ = FileStamp::of(path_);
  if (!interrupt_) interrupt_.emplace();
  interruptTimer_.start(interruptMs);
}

QString OutputWatch::problem() const {
  endIfInterrupted();
  if (path_.isEmpty()) return SysCarto::MapDocumentHost::takeLastFailure();
  if (!refusal_.isEmpty()) return refusal_;
  ImageTarget const target(path_, ImageFormat::writtenAt(path_));
  if (FileStamp::of(path_) == before_ || errors_.hasFailure()) return target.failure(errors_);
  QString const problem = target.checkResult(QSize());
  QString const suffix = QFileInfo(path_).suffix();
  if (!problem.isEmpty() || suffix.isEmpty() || ImageFormat::withSuffix(suffix) == &ImageFormat::writtenAt(path_))
    return problem;
  return tr("%1 holds a TIFF: this export writes no \".%2\"; rename it to .tif, or name an image that ends in %3.")
      .arg(QDir::toNativeSeparators(path_), suffix, ImageFormat::writtenSuffixes());
}

// The plug-in draws to its end whoever asks it to stop, so the process goes with it.
void OutputWatch::endIfInterrupted() const {
  if (interrupt_ && interrupt_->cancel()->IsCanced()) end();
}

void OutputWatch::end() const {
  bool const isAtWork = removeWorkFiles(QFileInfo(path_).absolutePath());
  bool const isBegun = FileStamp::of(path_) != before_;
  if (isAtWork && isBegun) QFile::remove(path_);
  if (isAtWork || !isBegun)
    Console::complain(tr("%1 was not written: interrupted.").arg(QDir::toNativeSeparators(path_)));
  Farewell::leave();
  Console::finish();
  std::_Exit(WorkFailed);
}
