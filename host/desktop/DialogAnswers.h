#pragma once

#include <QObject>
#include <QStringList>

#include <deque>

class QDialog;
class QWidget;

/// Answers the dialogs that commands open, in the place of a person. Answers are used in their order: each dialog takes
/// those that name widgets of its own, and is then accepted. A dialog for which there is no answer is rejected, and
/// told as a problem; but a message box that only tells something is accepted, and its text goes to standard error.
class DialogAnswers final : public QObject {
  Q_OBJECT

public:
  struct Answer {
    enum class Kind { Widget, Accept, Cancel } kind = Kind::Accept;
    QString widget;  ///< object name; "file", "color" or "button" in a dialog of that kind
    QString value;
  };

  /// Watches the application's dialogs as long as it lives.
  DialogAnswers();
  ~DialogAnswers() override;

  void add(Answer const& answer) { answers_.push_back(answer); }

  /// What went wrong since the last call: a sentence, or empty. Answers that no dialog took are dropped and told.
  QString takeProblem();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void answer(QDialog& dialog);
  void fail(QDialog& dialog, QString const& why);

  std::deque<Answer> answers_;
  QString problem_;
};
