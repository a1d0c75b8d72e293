#include "ExportDialog.h"

#include "ImageFormat.h"

#include "host/SysUtility/FileSaver.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

ExportDialog::ExportDialog(ImageFormat const& format, QString const& proposed, SysAdapterUI::FieldSource& source,
                           QWidget* parent)
    : SettingsDialog(tr("Export as %1").arg(format.shownName()), source, tr("E&xport"), parent),
      format_(format),
      file_(new QLineEdit(QDir::toNativeSeparators(proposed), this)) {
  file_->setObjectName(QStringLiteral("lineEdit_File"));
  auto* const label = new QLabel(tr("&File"), this);
  label->setBuddy(file_);
  auto* const choose = new QPushButton(tr("Choose…"), this);
  choose->setAutoDefault(false);
  auto* const row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(file_, 1);
  row->addWidget(choose);
  column().insertLayout(0, row);
  connect(choose, &QPushButton::clicked, this, &ExportDialog::chooseFile);
  file_->setFocus();
}

void ExportDialog::tell(QString const& sentence) {
  auto* const label = new QLabel(sentence, this);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  column().insertWidget(0, label);
}

QString ExportDialog::path() const {
  QString const typed = QDir::fromNativeSeparators(file_->text().trimmed());
  bool const hasSuffix = format_.suffixList().contains(QFileInfo(typed).suffix(), Qt::CaseInsensitive);
  return typed.isEmpty() || hasSuffix ? typed : typed + QLatin1Char('.') + format_.suffixList().first();
}

void ExportDialog::chooseFile() {
  QString const name = format_.shownName();
  QStringList patterns;
  for (QString const& suffix : format_.suffixList()) patterns << QStringLiteral("*.") + suffix;
  QFileDialog dialog(this, windowTitle(), QFileInfo(path()).absolutePath(),
                     QStringLiteral("%1 (%2)").arg(name, patterns.join(QLatin1Char(' '))));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(format_.suffixList().first());
  dialog.selectFile(path());
  if (dialog.exec() != QDialog::Accepted) return;
  file_->setText(QDir::toNativeSeparators(dialog.selectedFiles().first()));
  confirmed_ = path();  // the dialog has asked
}

// Plain text: a file may be called <b>.
bool ExportDialog::mayWrite(QString const& path) {
  QString const problem = path.isEmpty() ? tr("Name the file to write.")
                                         : SysUtility::FileSaver::checkFolder(QFileInfo(path).absoluteFilePath());
  bool const replaces = problem.isEmpty() && QFileInfo::exists(path) && path != confirmed_;
  if (problem.isEmpty() && !replaces) return true;
  QString const question =
      tr("%1 exists already.").arg(QDir::toNativeSeparators(path)) + QStringLiteral("\n\n") + tr("Replace it?");
  QMessageBox box(QMessageBox::Warning, tr("Plotvane"), replaces ? question : problem,
                  replaces ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok, this);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(replaces ? QMessageBox::No : QMessageBox::Ok);
  return box.exec() == QMessageBox::Yes;
}

void ExportDialog::accept() {
  if (mayWrite(path())) SettingsDialog::accept();
}
