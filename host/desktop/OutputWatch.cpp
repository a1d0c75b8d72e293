#include "OutputWatch.h"

#include "ImageFormat.h"
#include "ImageTarget.h"

#include "host/SysCarto/document/MapDocumentHost.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileInfo>
#include <QLineEdit>

OutputWatch::OutputWatch() {
  qApp->installEventFilter(this);
  SysCarto::MapDocumentHost::takeLastFailure();
}
OutputWatch::~OutputWatch() = default;

// The field by which a dialog is known as one that names an image to write.
bool OutputWatch::eventFilter(QObject* watched, QEvent* event) {
  auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
  auto* const field = dialog ? dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit_OutputPath")) : nullptr;
  if (field)
    connect(dialog, &QDialog::accepted, this, [this, field] {
      path_ = field->text();
      before_ = FileStamp::of(path_);
    });
  return false;
}

QString OutputWatch::problem() const {
  if (path_.isEmpty()) return SysCarto::MapDocumentHost::takeLastFailure();
  ImageTarget const target(path_, ImageFormat::writtenAt(path_));
  bool const isWritten = FileStamp::of(path_) != before_;
  QString problem = isWritten ? QString() : target.checkPlace(QString());
  if (problem.isEmpty() && (!isWritten || errors_.hasFailure())) problem = target.failure(errors_);
  return problem.isEmpty() ? target.checkResult(QSize()) : problem;
}
