#pragma once

#include <SysCarto/Export.h>

#include <QString>

#include <memory>

namespace SysCarto {

/// The undo bracket. What is added, deleted, replaced or restacked in element containers between `StartOperation` and
/// `StopOperation` is one step of the document's history. Operations are not nested.
class SYSCARTO_EXPORT Editor {
public:
  /// The one object of the process, borrowed.
  static Editor* Instance();
  virtual ~Editor();

  /// Opens an operation. `name` is its name for people; an empty one is shown as "Edit".
  virtual void StartOperation(QString const& name);

  /// Closes it. An operation that held no change of a container leaves no step, one that held any does, also when it
  /// moved nothing. Without an open operation this does nothing.
  virtual void StopOperation();

private:
  Editor();
  struct Private;
  std::unique_ptr<Private> d;
  friend class ElementContainer;
  friend struct EditorHost;
};

}  // namespace SysCarto
