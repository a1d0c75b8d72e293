#include "DocumentFiles.h"

#include "DocumentSession.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QStandardPaths>

namespace {

constexpr int mostRecent = 8;
constexpr int mostWarnings = 6;
QString const recentKey = QStringLiteral("recentFiles");
QString const suffix = QStringLiteral(".kdx");

QString filter() { return DocumentFiles::tr("Map documents (*.kdx)"); }

QStringList recentFiles() { return QSettings().value(recentKey).toStringList(); }

}  // namespace

DocumentFiles::DocumentFiles(DocumentSession& session, QWidget& parent) : session_(session), parent_(parent) {}
DocumentFiles::~DocumentFiles() = default;

QString DocumentFiles::folder() const {
  if (!session_.path().isEmpty()) return QFileInfo(session_.path()).absolutePath();
  QStringList const recent = recentFiles();
  return recent.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                          : QFileInfo(recent.first()).absolutePath();
}

void DocumentFiles::tellProblem(QString const& what) {
  QMessageBox box(QMessageBox::Critical, tr("Plotvane"), what, QMessageBox::Ok, &parent_);
  box.setInformativeText(session_.problem());
  box.exec();
}

void DocumentFiles::remember(QString const& path) {
  QString const absolute = QFileInfo(path).absoluteFilePath();
  QStringList recent = recentFiles();
  recent.removeAll(absolute);
  recent.prepend(absolute);
  QSettings().setValue(recentKey, QStringList(recent.mid(0, mostRecent)));
}

bool DocumentFiles::mayLeave() {
  if (!session_.isModified()) return true;
  QMessageBox box(QMessageBox::Question, tr("Plotvane"), tr("Save the changes to %1?").arg(session_.title()),
                  QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &parent_);
  box.setInformativeText(tr("Without saving, they are lost."));
  box.setDefaultButton(QMessageBox::Save);
  switch (box.exec()) {
    case QMessageBox::Save: return save();
    case QMessageBox::Discard: return true;
    default: return false;
  }
}

bool DocumentFiles::create() { return mayLeave() && session_.create(); }

bool DocumentFiles::open() {
  QString const path = QFileDialog::getOpenFileName(&parent_, tr("Open"), folder(), filter());
  return !path.isEmpty() && open(path);
}

bool DocumentFiles::open(QString const& path) {
  if (!mayLeave()) return false;
  if (!session_.open(path)) {
    tellProblem(tr("The document was not opened."));
    return false;
  }
  remember(path);
  QStringList warnings = session_.document().GetWarnings();
  if (warnings.isEmpty()) return true;
  int const more = warnings.size() - mostWarnings;
  warnings = warnings.mid(0, mostWarnings);
  if (more > 0) warnings << tr("… and %1 more.").arg(more);
  QMessageBox box(QMessageBox::Warning, tr("Plotvane"), tr("The document was opened, but not all of it was read."),
                  QMessageBox::Ok, &parent_);
  box.setInformativeText(warnings.join(QStringLiteral("\n\n")));
  box.exec();
  return true;
}

bool DocumentFiles::save() {
  if (session_.path().isEmpty()) return saveAs();
  if (session_.save()) return true;
  tellProblem(tr("The document was not saved."));
  return false;
}

bool DocumentFiles::saveAs() {
  QString const proposed =
      session_.path().isEmpty() ? folder() + QLatin1Char('/') + session_.title() + suffix : session_.path();
  QFileDialog dialog(&parent_, tr("Save As"), proposed, filter());
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix.mid(1));  // before the question whether to write over a file
  dialog.selectFile(proposed);
  if (dialog.exec() != QDialog::Accepted) return false;
  QString const path = dialog.selectedFiles().first();
  if (!session_.saveAs(path)) {
    tellProblem(tr("The document was not saved."));
    return false;
  }
  remember(path);
  return true;
}

void DocumentFiles::fillWithRecent(QMenu& menu) {
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
    menu.clear();
    for (QString const& path : recentFiles())
      menu.addAction(QFileInfo(path).fileName(), this, [this, path] { open(path); })->setStatusTip(path);
    if (menu.isEmpty()) menu.addAction(tr("No recent files"))->setEnabled(false);
  });
}
