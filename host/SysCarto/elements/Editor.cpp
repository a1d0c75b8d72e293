#include "EditorHost.h"
#include "EditorRecord.h"

#include <QCoreApplication>

#include <algorithm>

namespace SysCarto {

namespace {

// Undoing and redoing are the same: the orders of then and now change places.
class ElementsCommand final : public QUndoCommand {
public:
  ElementsCommand(QString const& name, std::vector<ChangedContainer> changes)
      : QUndoCommand(name), changes_(std::move(changes)) {}

  void undo() override { exchange(); }
  void redo() override {
    if (isDone_) exchange();
    isDone_ = true;  // the history redoes a command when it receives it, after it was done
  }

private:
  void exchange() {
    for (ChangedContainer& change : changes_)
      if (auto const container = change.container.lock()) (*container)->exchange(change.order);
  }

  std::vector<ChangedContainer> changes_;
  bool isDone_ = false;
};

}  // namespace

void Editor::Private::keepOwned(ElementContainer const& container) {
  auto const isSame = [&](std::weak_ptr<ElementContainer*> const& one) {
    auto const known = one.lock();
    return known && *known == &container;
  };
  if (std::none_of(owned.begin(), owned.end(), isSame)) owned.push_back(container.token());
}

bool Editor::Private::records(ElementContainer const& container) {
  if (isOpen && container.owner()) {
    keepOwned(container);
    return true;
  }
  if (!isOpen || !history) return false;
  auto const isSame = [&](ChangedContainer const& change) {
    auto const changed = change.container.lock();
    return changed && *changed == &container;
  };
  if (std::none_of(changes.begin(), changes.end(), isSame)) changes.push_back({container.token(), container.order()});
  return true;
}

void Editor::Private::close() {
  for (std::size_t i = 0; i < owned.size(); ++i)  // an owner may have one itself
    if (auto const container = owned[i].lock()) (*container)->owner()();
  owned.clear();
  isOpen = false;
  std::vector<ChangedContainer> const changed = std::move(changes);
  changes.clear();
  if (!history || changed.empty()) return;
  QString const step = name.isEmpty() ? QCoreApplication::translate("Editor", "Edit") : name;
  EditorHost::take(std::make_unique<ElementsCommand>(step, changed));
}

Editor::Editor() : d(std::make_unique<Private>()) {}
Editor::~Editor() = default;

Editor* Editor::Instance() {
  static Editor editor;
  return &editor;
}

void Editor::StartOperation(QString const& name) {
  d->close();
  d->isOpen = true;
  d->name = name;
}

void Editor::StopOperation() { d->close(); }

void EditorHost::setHistory(QUndoStack* history) {
  Editor::Private& editor = *Editor::Instance()->d;
  if (history == editor.history) return;
  editor.close();
  editor.history = history;
}

QUndoStack* EditorHost::history() { return Editor::Instance()->d->history; }

// The history would keep a macro that stays empty, and forget what could be redone, so it begins with its first part.
void EditorHost::take(std::unique_ptr<QUndoCommand> step) {
  Editor::Private const& editor = *Editor::Instance()->d;
  if (!editor.history) return step->redo();
  if (editor.oneStep && !editor.oneStep->isBegun_) {
    editor.history->beginMacro(editor.oneStep->name_);
    editor.oneStep->isBegun_ = true;
  }
  editor.history->push(step.release());  // which redoes what it is given
}

void EditorHost::begin(OneStep& step) {
  Editor::Private& editor = *Editor::Instance()->d;
  if (!editor.oneStep) editor.oneStep = &step;
}

void EditorHost::end(OneStep const& step) {
  Editor::Private& editor = *Editor::Instance()->d;
  if (editor.oneStep != &step) return;
  editor.oneStep = nullptr;
  if (step.isBegun_ && editor.history) editor.history->endMacro();
}

OneStep::OneStep(QString const& name) : name_(name) { EditorHost::begin(*this); }
OneStep::~OneStep() { EditorHost::end(*this); }

}  // namespace SysCarto
