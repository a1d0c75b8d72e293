#include "DocumentSession.h"

#include "FileStamp.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysUtility/FileReach.h"

#include <QFileInfo>
#include <QUndoStack>

DocumentSession::DocumentSession() {
  SysCarto::EditorHost::setHistory(SysCarto::MapDocumentHost::history(document_));
  connect(SysCarto::MapDocumentHost::history(document_), &QUndoStack::indexChanged, this,
          &DocumentSession::historyChanged);
}

DocumentSession::~DocumentSession() {
  if (SysCarto::EditorHost::history() == SysCarto::MapDocumentHost::history(document_))
    SysCarto::EditorHost::setHistory(nullptr);
}

QString DocumentSession::title() const { return path().isEmpty() ? tr("Untitled") : QFileInfo(path()).fileName(); }

QString DocumentSession::takeProblem() { return SysCarto::MapDocumentHost::takeLastFailure(); }
QString DocumentSession::takeRemark() { return SysCarto::MapDocumentHost::takeLastRemark(); }

bool DocumentSession::settle(bool done) {
  if (!done) return false;
  isFileGivenUp_ = false;
  emit replaced();
  return true;
}

bool DocumentSession::create() { return settle(document_.New(QString())); }

// The digest is taken first: what changes while it is read then counts as changed.
bool DocumentSession::open(QString const& path, SysCarto::ReadDepth depth) {
  QByteArray const digest = SysUtility::FileReach::refusal(path).isEmpty() ? contentDigest(path) : QByteArray();
  if (!SysCarto::MapDocumentHost::open(document_, path, depth)) return false;
  fileDigest_ = digest;
  return settle(true);
}

void DocumentSession::takeOver(SysCarto::MapDocument& made) {
  SysCarto::MapDocumentHost::takeOver(document_, made);
  settle(true);
}

bool DocumentSession::recover(QString const& copy, QString const& file, bool relativePaths,
                              QByteArray const& fileDigest) {
  if (!SysCarto::MapDocumentHost::recover(document_, copy, file, relativePaths)) return false;
  fileDigest_ = fileDigest;
  return settle(true);
}

bool DocumentSession::save() { return saveAs(path()); }

bool DocumentSession::saveAs(QString const& path) {
  if (!document_.SaveAs(path, document_.IsUsesRelativePaths(), keepsEarlier_)) return false;
  fileDigest_ = contentDigest(path);
  return settle(true);
}

void DocumentSession::setFileGivenUp(bool isGivenUp) {
  isFileGivenUp_ = isGivenUp;
  emit modifiedChanged();
}

bool DocumentSession::isFileChanged() const {
  QByteArray const digest = path().isEmpty() ? QByteArray() : contentDigest(path());
  return !digest.isEmpty() && digest != fileDigest_;
}
