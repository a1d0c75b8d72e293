#include "BoxTitles.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QMessageBox>

BoxTitles::BoxTitles(QObject* parent) : QObject(parent) { qApp->installEventFilter(this); }

// A box takes its size from its layout when it is shown.
bool BoxTitles::eventFilter(QObject* watched, QEvent* event) {
  auto* const box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
  auto* const grid = box ? qobject_cast<QGridLayout*>(box->layout()) : nullptr;
  if (grid)
    grid->addItem(new QSpacerItem(box->fontMetrics().horizontalAdvance(box->windowTitle()) + titleBarPx, 0),
                  grid->rowCount(), 0, 1, grid->columnCount());
  return false;
}
