#pragma once

#include "host/SysCarto/layers/ClassCounts.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;

/// A button that has features counted, and what came of it. It is done in slices of the event loop, and can be stopped.
class TestBar final : public QWidget {
  Q_OBJECT

public:
  /// Begins to count; null, with a sentence, where that can't be done.
  using Begin = std::function<std::unique_ptr<SysCarto::ClassCounts>(QString& problem)>;
  /// What is said of all that was counted.
  using Tell = std::function<QString(SysCarto::ClassCounts const& counts)>;

  TestBar(QString const& caption, QString const& help, Begin begin, Tell tell, QWidget* parent);
  ~TestBar() override;

  void start();

  /// Drops what was found, too: it is no longer true.
  void clear();

  void say(QString const& sentence, bool isProblem);

signals:
  void finished();

private:
  void goOn();
  void showWork();
  void stop();

  Begin const begin_;
  Tell const tell_;
  QPushButton* const start_;
  QPushButton* const cancel_;
  QProgressBar* const progress_;
  QLabel* const told_;
  QTimer slices_;
  std::unique_ptr<SysCarto::ClassCounts> counts_;
};
