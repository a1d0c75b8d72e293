#include "ProgressLine.h"

#include "Console.h"

#include <QProgressBar>
#include <QProgressDialog>

ProgressLine::ProgressLine(QProgressDialog& dialog) : dialog_(dialog) {
  if (auto* const bar = dialog.findChild<QProgressBar*>())
    connect(bar, &QProgressBar::valueChanged, this, &ProgressLine::show);
}

ProgressLine::~ProgressLine() { Console::showStatus(QString()); }

void ProgressLine::show(int percent) {
  if (percent >= 0) Console::showStatus(QStringLiteral("%1 %2 %").arg(dialog_.labelText()).arg(percent, 3));
}
