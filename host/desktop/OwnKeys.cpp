#include "OwnKeys.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

bool isForRows(QKeyEvent const& key) {
  bool const isPlain = !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  bool const isOfWindow = key.key() == Qt::Key_Escape || (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35);
  if (isPlain) return !isOfWindow;
  for (auto const meaning : {QKeySequence::SelectAll, QKeySequence::Copy, QKeySequence::Cut, QKeySequence::Paste})
    if (key.matches(meaning)) return true;
  return false;
}

OwnKeys::OwnKeys(QWidget& widget) : QObject(&widget), widget_(widget) { widget.installEventFilter(this); }
OwnKeys::~OwnKeys() = default;

QAction* OwnKeys::actionFor(QKeyEvent const& event) const {
  auto const modifiers = event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
  QKeySequence const keys(static_cast<int>(modifiers) | event.key());
  for (QAction* const action : widget_.actions())
    if (action->shortcutContext() == Qt::WidgetShortcut && action->shortcut() == keys) return action;
  return nullptr;
}

bool OwnKeys::eventFilter(QObject*, QEvent* event) {
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
  QWidget const* const focus = QApplication::focusWidget();  // of an editor in the widget the keys are its own
  if (focus && focus != &widget_ && widget_.isAncestorOf(focus)) return false;
  QAction* const action = actionFor(*static_cast<QKeyEvent*>(event));
  if (!action) return false;
  event->accept();
  if (event->type() == QEvent::KeyPress) action->trigger();
  return true;
}
