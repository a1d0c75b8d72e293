#include "DocumentFiles.h"

#include "DocumentSession.h"

#include "layers/ReadingProgress.h"
#include "newmap/NewMapDialog.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/layers/Connections.h"
#include "host/SysUtility/FileSaver.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace {

constexpr int maxRecent = 8;
constexpr int maxReasons = 6;
constexpr int untilNextTryMs = 200;
QString const recentKey = QStringLiteral("recentFiles");
QString const suffix = QStringLiteral(".kdx");

QString filter() { return DocumentFiles::tr("Map documents (*.kdx)"); }

QStringList recentFiles() { return QSettings().value(recentKey).toStringList(); }

QVector<SysCarto::DocumentSource> sourcesOf(DocumentSession& session) {
  auto const layout = session.document().GetPageLayout();
  return layout ? SysCarto::sourcesOf(*layout) : QVector<SysCarto::DocumentSource>();
}

QStringList problemsOf(DocumentSession& session) {
  QStringList problems;
  for (auto const& source : sourcesOf(session))
    if (!source.problem.isEmpty()) problems << source.problem;
  return problems;
}

// Of connections that are not open to documents the window's notice tells, which has the way to allow them.
QStringList besidesClosedConnections(DocumentSession& session, QStringList sentences) {
  using SysCarto::Connections;
  for (auto const& source : sourcesOf(session)) {
    if (!Connections::find(source.connection) || Connections::isAllowed(source.connection)) continue;
    QString const told = Connections::refusal(source.connection);
    sentences.erase(std::remove_if(sentences.begin(), sentences.end(),
                                   [&](QString const& sentence) { return sentence.contains(told); }),
                    sentences.end());
  }
  return sentences;
}

QString paragraphs(QStringList texts) {
  int const more = texts.size() - maxReasons;
  texts = texts.mid(0, maxReasons);
  if (more > 0) texts << DocumentFiles::tr("… and %1 more.").arg(more);
  return texts.join(QStringLiteral("\n\n"));
}

QString namesOf(QStringList const& paths) {
  QStringList names;
  for (QString const& path : paths) names << QFileInfo(path).fileName();
  return names.join(QStringLiteral(", "));
}

// A box would come in between.
bool isPersonBusy() {
  QWidget const* const focus = QApplication::focusWidget();
  bool const isTyping = qobject_cast<QLineEdit const*>(focus) || qobject_cast<QPlainTextEdit const*>(focus);
  return isTyping || QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
         QApplication::mouseButtons() != Qt::NoButton;
}

}  // namespace

DocumentFiles::DocumentFiles(DocumentSession& session, QWidget& parent)
    : session_(session), parent_(parent), listener_([this](bool) {
        if (owesTelling_) telling_.start(0);
      }) {
  telling_.setSingleShot(true);
  connect(&telling_, &QTimer::timeout, this, &DocumentFiles::tellOfData);
  connect(&session_, &DocumentSession::replaced, this, [this] {
    changed_.clear();
    followFiles();
  });
  connect(&session_, &DocumentSession::historyChanged, this, &DocumentFiles::followFiles);
  connect(&watch_, &FileWatch::changed, this, &DocumentFiles::noteChanges);
}

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

bool DocumentFiles::confirm(QString const& what, QString const& question) {
  return ask(QMessageBox::Warning, paragraphs({what, question}), QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
         QMessageBox::Yes;
}

void DocumentFiles::tell(QMessageBox::Icon icon, QString const& what, QStringList const& why) {
  ask(icon, what + QStringLiteral("\n\n") + paragraphs(why), QMessageBox::Ok, QMessageBox::Ok);
}

void DocumentFiles::remember(QString const& path) {
  QString const absolute = QFileInfo(path).absoluteFilePath();
  QStringList recent = recentFiles();
  recent.removeAll(absolute);
  recent.prepend(absolute);
  QSettings().setValue(recentKey, QStringList(recent.mid(0, maxRecent)));
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

bool DocumentFiles::waitForData() {
  auto const layout = session_.document().GetPageLayout();
  if (!layout || !SysCarto::isBeingRead(*layout)) return true;
  ReadingProgress progress(parent_);
  return SysCarto::waitForData(*layout, progress.watch());
}

bool DocumentFiles::mayExport() {
  if (!waitForData()) return false;
  QStringList const missing = problemsOf(session_);
  return missing.isEmpty() || confirm(tr("The page will not be whole.") + QStringLiteral("\n\n") + paragraphs(missing),
                                      tr("Export it all the same?"));
}

bool DocumentFiles::create() {
  if (!mayLeave() || !session_.create()) return false;
  hold(nullptr, false);
  return true;
}

// The questions stay where the answers were not good enough.
QStringList DocumentFiles::createFromData() {
  if (!mayLeave()) return {};
  NewMapDialog dialog({}, &parent_);
  while (dialog.exec() == QDialog::Accepted) {
    NewMapResult made;
    SysCarto::MapDocument document;  // the window's stays until it is whole
    {
      ReadingProgress progress(parent_);
      made = makeNewMap(dialog.request(), document, progress.watch());
    }
    if (made.wasStopped) continue;
    if (!made.problem.isEmpty()) {
      tell(QMessageBox::Critical, tr("The map was not made."), {made.problem});
      continue;
    }
    session_.takeOver(document);
    hold(nullptr, false);
    if (!made.warnings.isEmpty())
      tell(QMessageBox::Warning, tr("The map was made. Some of its data need a look."), made.warnings);
    return made.explanation;
  }
  return {};
}

// Both dialogs show the same files, under the same names, and begin in the same folder.
QString DocumentFiles::choose(QString const& caption, QFileDialog::AcceptMode mode, QString const& proposed) {
  QFileDialog dialog(&parent_, caption, QFileInfo(proposed).absolutePath(), filter());
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setDefaultSuffix(suffix.mid(1));  // before the question whether to write over a file
  if (mode == QFileDialog::AcceptSave) dialog.selectFile(proposed);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().first() : QString();
}

std::shared_ptr<DocumentLock> DocumentFiles::lockFor(QString const& path) const {
  return lock_ && lock_->guards(path) ? lock_ : std::make_shared<DocumentLock>(path);
}

bool DocumentFiles::open() {
  QString const path = choose(tr("Open"), QFileDialog::AcceptOpen, folder() + QLatin1Char('/'));
  return !path.isEmpty() && open(path);
}

bool DocumentFiles::open(QString const& path) { return mayLeave() && read(path); }

bool DocumentFiles::read(QString const& path) {
  auto const lock = lockFor(path);
  if (!lock->take() && lock != lock_ &&
      !confirm(lock->holder(),
               tr("Open %1 to read it? Changes are then saved under another name.").arg(QFileInfo(path).fileName())))
    return false;
  if (!session_.open(path, SysCarto::ReadDepth::Later)) {
    tell(QMessageBox::Critical, tr("The document was not opened."), {session_.takeProblem()});
    return false;
  }
  remember(path);
  hold(lock, true);
  return true;
}

void DocumentFiles::takeOver() {
  auto const lock = session_.path().isEmpty() ? nullptr : lockFor(session_.path());
  if (lock) lock->take();
  hold(lock, true);
}

// The session has another document.
void DocumentFiles::hold(std::shared_ptr<DocumentLock> const& lock, bool isOpened) {
  lock_ = lock;
  owesTelling_ = isOpened;
  if (!isOpened) return;
  emit opened();
  tellOfData();
}

// Once, of all data together, and only where nobody is in the middle of something.
void DocumentFiles::tellOfData() {
  auto const layout = session_.document().GetPageLayout();
  if (!owesTelling_ || (layout && SysCarto::isBeingRead(*layout))) return;
  if (isPersonBusy()) return telling_.start(untilNextTryMs);
  owesTelling_ = false;
  emit dataRead();
  auto const& document = session_.document();
  QStringList const warnings =
      besidesClosedConnections(session_, document.GetWarnings() + SysCarto::readingWarnings(document));
  if (!warnings.isEmpty())
    tell(QMessageBox::Warning, tr("The document was opened, but not all of it was read."), warnings);
}

bool DocumentFiles::isReadOnly() const {
  return (lock_ && lock_->isForeign()) ||
         (!session_.path().isEmpty() && !SysUtility::FileSaver::checkPlace(session_.path()).isEmpty());
}

// Whoever had the document open first may have closed it meanwhile.
bool DocumentFiles::save() {
  bool const hasPlace =
      SysUtility::FileSaver::checkPlace(session_.path()).isEmpty() && lockFor(session_.path())->take();
  return hasPlace ? write(session_.path()) : saveAs();
}

bool DocumentFiles::saveAs() {
  QString const proposed =
      session_.path().isEmpty() ? folder() + QLatin1Char('/') + session_.title() + suffix : session_.path();
  QString path = choose(tr("Save As"), QFileDialog::AcceptSave, proposed);
  if (path.isEmpty()) return false;
  // The dialog leaves "map.v2" as it is.
  if (!path.endsWith(suffix, Qt::CaseInsensitive)) {
    path += suffix;
    if (QFileInfo::exists(path) &&
        !confirm(tr("%1 exists already.").arg(QDir::toNativeSeparators(path)), tr("Replace it?")))
      return false;
  }
  return write(path);
}

bool DocumentFiles::mayOverwrite(QString const& path, DocumentLock const& lock) {
  return !lock.guards(session_.path()) || !session_.isFileChanged() ||
         confirm(tr("%1 was changed by another program since it was read.").arg(QDir::toNativeSeparators(path)),
                 tr("Replace what it holds now?"));
}

bool DocumentFiles::write(QString const& path) {
  QString const failed = tr("The document was not saved.");
  auto const lock = lockFor(path);
  if (!lock->take()) {
    tell(QMessageBox::Critical, failed, {lock->holder(), tr("Choose another name.")});
    return false;
  }
  if (!mayOverwrite(path, *lock)) return false;
  if (!session_.saveAs(path)) {
    tell(QMessageBox::Critical, failed, {session_.takeProblem()});
    return false;
  }
  lock_ = lock;
  remember(path);
  QString const remark = session_.takeRemark();
  if (!remark.isEmpty()) emit told(remark, false);
  return true;
}

void DocumentFiles::followFiles() {
  QStringList files;
  if (!session_.path().isEmpty()) files << session_.path();
  for (auto const& source : sourcesOf(session_))
    if (!source.file.isEmpty()) files << source.file;
  watch_.follow(files);
}

// The window's own save is a change of the file, too, but not of what it is known to hold.
void DocumentFiles::noteChanges(QStringList const& paths) {
  QStringList changed, missing, sentences;
  for (QString const& path : paths)
    if (!QFileInfo::exists(path))
      missing << path;
    else if (path != session_.path() || session_.isFileChanged())
      changed << path;
  for (QString const& path : qAsConst(changed))
    if (!changed_.contains(path)) changed_ << path;
  for (QString const& path : qAsConst(missing)) changed_.removeAll(path);
  if (missing.contains(session_.path()))
    session_.setFileGivenUp(true);
  else if (paths.contains(session_.path()) && !session_.isFileChanged())
    session_.setFileGivenUp(false);
  if (!changed.isEmpty()) sentences << tr("Changed by another program: %1.").arg(namesOf(changed));
  if (!missing.isEmpty()) sentences << tr("Removed by another program: %1.").arg(namesOf(missing));
  if (!sentences.isEmpty()) emit told(sentences.join(QLatin1Char(' ')), !changed_.isEmpty());
}

bool DocumentFiles::reload() {
  if (changed_.contains(session_.path())) {
    if (session_.hasChanges() &&
        !confirm(tr("%1 holds changes that were not saved.").arg(session_.title()), tr("Drop them and read the file?")))
      return false;
    bool const isRead = read(session_.path());
    if (!isRead) session_.setFileGivenUp(true);
    return isRead;
  }
  readAgain(std::exchange(changed_, {}));
  return true;
}

void DocumentFiles::readAgain(QStringList const& origins) {
  auto const layout = session_.document().GetPageLayout();
  if (layout) SysCarto::readAgain(*layout, origins);
  emit dataReplaced();
  if (owesTelling_ && !(layout && SysCarto::isBeingRead(*layout))) return tellOfData();
  QStringList const problems = besidesClosedConnections(session_, problemsOf(session_));
  if (!problems.isEmpty()) tell(QMessageBox::Warning, tr("Not all data could be read."), problems);
}

void DocumentFiles::keep() {
  if (changed_.removeAll(session_.path()) > 0) session_.setFileGivenUp(true);
}

void DocumentFiles::fillWithRecent(QMenu& menu) {
  connect(&menu, &QMenu::aboutToShow, this, [this, &menu] {
    menu.clear();
    for (QString const& path : recentFiles())
      menu.addAction(QFileInfo(path).fileName().replace(QLatin1Char('&'), QStringLiteral("&&")), this,
                     [this, path] { open(path); })
          ->setStatusTip(path);
    if (menu.isEmpty()) menu.addAction(tr("No recent files"))->setEnabled(false);
  });
}
