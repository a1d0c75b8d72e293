#include "DocumentSession.h"

#include <SysCarto/Editor.h>

#include <QFileInfo>
#include <QUndoStack>

DocumentSession::DocumentSession() {
  SysCarto::Editor::Instance()->setHistory(document_.history());
  connect(document_.history(), &QUndoStack::indexChanged, this, &DocumentSession::historyChanged);
}

DocumentSession::~DocumentSession() {
  if (SysCarto::Editor::Instance()->history() == document_.history()) SysCarto::Editor::Instance()->setHistory(nullptr);
}

QString DocumentSession::title() const { return path().isEmpty() ? tr("Untitled") : QFileInfo(path()).fileName(); }

bool DocumentSession::settle(bool done) {
  if (!done) return false;
  storedText_ = document_.GetText();
  emit replaced();
  return true;
}

bool DocumentSession::create() { return settle(document_.New(QString())); }
bool DocumentSession::open(QString const& path) { return settle(document_.Open(path)); }
bool DocumentSession::save() { return saveAs(path()); }

bool DocumentSession::saveAs(QString const& path) {
  return settle(document_.SaveAs(path, document_.IsUsesRelativePaths(), false));
}

bool DocumentSession::isModified() const {
  return document_.GetPageLayout() && (!document_.history()->isClean() || document_.GetText() != storedText_);
}
