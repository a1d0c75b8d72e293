#include "ReturnKeeper.h"

#include <QDialog>
#include <QKeyEvent>

ReturnKeeper::ReturnKeeper(QDialog& dialog) : QObject(&dialog) { dialog.installEventFilter(this); }
ReturnKeeper::~ReturnKeeper() = default;

bool ReturnKeeper::eventFilter(QObject* watched, QEvent* event) {
  auto const* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
  if (!key || (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter))
    return QObject::eventFilter(watched, event);
  if (key->modifiers() & Qt::ControlModifier) static_cast<QDialog*>(watched)->accept();
  return true;
}
