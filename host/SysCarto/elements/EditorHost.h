#pragma once

#include <SysCarto/Editor.h>

#include <memory>

class QUndoCommand;
class QUndoStack;

namespace SysCarto {

class OneStep;

/// The history that takes the editor's operations, borrowed: that of the document being edited. Null drops them.
struct SYSCARTO_EXPORT EditorHost {
  static void setHistory(QUndoStack* history);
  static QUndoStack* history();

  /// Does a step and gives it to the history; without one it is only done.
  static void take(std::unique_ptr<QUndoCommand> step);

private:
  friend class OneStep;
  static void begin(OneStep& step);
  static void end(OneStep const& step);
};

/// What is given to the history while this lives is one step there, of this name. Where nothing is given, the history
/// stays as it was. One within another is part of that.
class SYSCARTO_EXPORT OneStep {
public:
  explicit OneStep(QString const& name);
  ~OneStep();
  OneStep(OneStep const&) = delete;
  OneStep& operator=(OneStep const&) = delete;

private:
  friend struct EditorHost;

  QString const name_;
  bool isBegun_ = false;
};

}  // namespace SysCarto
