#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

/// A line above the views that tells what has happened to files, and offers to read them anew or to let it be. It keeps
/// nobody from working on.
class NoticeBar final : public QFrame {
  Q_OBJECT

public:
  explicit NoticeBar(QWidget* parent);
  ~NoticeBar() override;

  void tell(QString const& text, bool canReload);

  /// Below what is told already. With a button that does what is offered, and closes the line.
  void offer(QString const& text, QString const& button, std::function<void()> const& accept);

signals:
  void reloadWanted();
  void keepWanted();

private:
  QLabel* text_;
  QPushButton* reload_;
  QPushButton* offer_;
  QPushButton* keep_;
  std::function<void()> offered_;
};
