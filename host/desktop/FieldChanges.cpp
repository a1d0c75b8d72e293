#include "FieldChanges.h"

#include "DocumentSession.h"

#include "host/SysCarto/document/MapDocumentHost.h"

#include <QUndoStack>

namespace {

constexpr qint64 quickMs = 1000;

// The last step, undone, is not done again: it goes.
void dropUndone(QUndoStack& history) {
  if (history.index() + 1 != history.count()) return;
  const_cast<QUndoCommand*>(history.command(history.index()))->setObsolete(true);
  history.redo();
}

}  // namespace

QString FieldChanges::set(SysCarto::Editable::List const& things, QStringList const& path,
                          SysUtility::NewValue const& value, QString const& joining, QStringList& warnings) {
  QUndoStack* const history = SysCarto::MapDocumentHost::history(session_.document());
  bool const isQuick = !joining.isEmpty() && joining == last_.joining && history->index() == last_.step &&
                       history->canUndo() && last_.clock.isValid() && last_.clock.elapsed() < quickMs;
  if (isQuick) history->undo();
  int const before = history->index();
  QString const problem = SysCarto::Editable::set(session_.document(), things, path, value, warnings);
  if (isQuick && !problem.isEmpty()) history->redo();
  // It is as it was before the step.
  if (isQuick && problem.isEmpty() && history->index() == before) dropUndone(*history);
  if (problem.isEmpty()) {
    last_.joining = history->index() == before ? QString() : joining;
    last_.step = history->index();
    last_.clock.restart();
  }
  return problem;
}
