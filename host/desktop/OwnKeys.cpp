#include "OwnKeys.h"

#include <QAction>
#include <QKeyEvent>
#include <QWidget>

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
  QAction* const action = actionFor(*static_cast<QKeyEvent*>(event));
  if (!action) return false;
  event->accept();
  if (event->type() == QEvent::KeyPress) action->trigger();
  return true;
}
