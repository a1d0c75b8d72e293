#pragma once

#include <QObject>

/// Makes each message box wide enough for its title, whoever opens it: Qt leaves too little for the buttons and the
/// icon of a window's title bar, and "Warning" over a short text is cut.
class BoxTitles final : public QObject {
public:
  static constexpr int titleBarPx = 150;  ///< what a title bar holds besides the title

  /// Watches the application's boxes as long as it lives.
  explicit BoxTitles(QObject* parent);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
