#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

/// Does something with the dialog that is going to be shown, as a person would.
inline void answerDialog(std::function<void(QWidget&)> const& answer) {
  QTimer::singleShot(0, [answer] {
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog) return answer(*dialog);
    answerDialog(answer);
  });
}
