#include "DocumentFiles.h"

#include "DocumentSession.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
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

// Plain text: a file may be called <b>.
QMessageBox::StandardButton DocumentFiles::ask(QMessageBox::Icon icon, QString const& text,
                                               QMessageBox::StandardButtons buttons,
                                               QMessageBox::StandardButton proposed) {
  QMessageBox box(icon, tr("Plotvane"), text, buttons, &parent_);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(proposed);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

void DocumentFiles::tell(QMessageBox::Icon icon, QString const& what, QString const& why) {
  ask(icon, what + QStringLiteral("\n\n") + why, QMessageBox::Ok, QMessageBox::Ok);
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
  QString const question =
      tr("Save the changes to %1?").arg(session_.title()) + QLatin1Char('\n') + tr("Without saving, they are lost.");
  switch (ask(QMessageBox::Question, question, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
              QMessageBox::Save)) {
    case QMessageBox::Save: return save();
    case QMessageBox::Discard: return true;
    default: return false;
  }
}

bool DocumentFiles::create() { return mayLeave() && session_.create(); }

// Both dialogs show the same files, under the same names, and take the document's own as a proposal.
QString DocumentFiles::choose(QString const& caption, QFileDialog::AcceptMode mode, QString const& proposed) {
  QFileDialog dialog(&parent_, caption, QFileInfo(proposed).absolutePath(), filter());
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setDefaultSuffix(suffix.mid(1));  // before the question whether to write over a file
  if (mode == QFileDialog::AcceptSave) dialog.selectFile(proposed);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().first() : QString();
}

bool DocumentFiles::open() {
  QString const path = choose(tr("Open"), QFileDialog::AcceptOpen, folder() + QLatin1Char('/'));
  return !path.isEmpty() && open(path);
}

bool DocumentFiles::open(QString const& path) {
  if (!mayLeave()) return false;
  if (!session_.open(path)) {
    tell(QMessageBox::Critical, tr("The document was not opened."), session_.problem());
    return false;
  }
  remember(path);
  QStringList warnings = session_.document().GetWarnings();
  if (warnings.isEmpty()) return true;
  int const more = warnings.size() - mostWarnings;
  warnings = warnings.mid(0, mostWarnings);
  if (more > 0) warnings << tr("… and %1 more.").arg(more);
  tell(QMessageBox::Warning, tr("The document was opened, but not all of it was read."),
       warnings.join(QStringLiteral("\n\n")));
  return true;
}

bool DocumentFiles::save() { return session_.path().isEmpty() ? saveAs() : write(session_.path()); }

bool DocumentFiles::saveAs() {
  QString const proposed =
      session_.path().isEmpty() ? folder() + QLatin1Char('/') + session_.title() + suffix : session_.path();
  QString path = choose(tr("Save As"), QFileDialog::AcceptSave, proposed);
  if (path.isEmpty()) return false;
  // The dialog leaves "map.v2" as it is.
  if (!path.endsWith(suffix, Qt::CaseInsensitive)) {
    path += suffix;
    if (QFileInfo::exists(path) && !mayReplace(path)) return false;
  }
  return write(path);
}

bool DocumentFiles::mayReplace(QString const& path) {
  QString const question = tr("%1 exists already. Replace it?").arg(QDir::toNativeSeparators(path));
  return ask(QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

bool DocumentFiles::write(QString const& path) {
  if (!session_.saveAs(path)) {
    tell(QMessageBox::Critical, tr("The document was not saved."), session_.problem());
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
