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

  /// In place of what was told before, above what is offered.
  void tell(QString const& text, bool canReload);

  /// Below what is told already.
  void add(QString const& text);

  /// In place of what was offered before, below what is told. With a button that does it.
  void offer(QString const& text, QString const& button, std::function<void()> const& accept);

  bool isOffering() const { return !isHidden() && offered_.accept; }

signals:
  void reloadWanted();
  void keepWanted();

private:
  struct Offer {
    QString text, button;
    std::function<void()> accept;
  };

  void showAll();
  void takeOffer();

  // What the line shows; worth nothing while it is hidden.
  QString told_;
  bool canReload_ = false;
  Offer offered_;

  QLabel* text_;
  QPushButton* reload_;
  QPushButton* offer_;
  QPushButton* keep_;
};
