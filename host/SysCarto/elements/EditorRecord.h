#pragma once

#include "host/SysCarto/elements/ElementContainer.h"

#include <SysCarto/Editor.h>

#include <QPointer>
#include <QUndoStack>

#include <vector>

namespace SysCarto {

/// A container that an operation changes, with its order as it was before the operation or will be again after an undo.
struct ChangedContainer {
  std::weak_ptr<ElementContainer*> container;
  ElementContainer::Order order;
};

class OneStep;

struct Editor::Private {
  QPointer<QUndoStack> history;
  OneStep* oneStep = nullptr;  // the outermost that lives
  bool isOpen = false;
  QString name;
  std::vector<ChangedContainer> changes;
  std::vector<std::weak_ptr<ElementContainer*>> owned;  // that were changed and have an owner

  /// A container asks before each change, whose opposite is then kept; false where no operation is open.
  bool records(ElementContainer const& container);
  void keepOwned(ElementContainer const& container);
  void close();
};

}  // namespace SysCarto
