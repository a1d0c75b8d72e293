#pragma once

#include <QObject>

class DocumentSession;
class QWidget;

/// Asks before a command that may cost the undo history its steps: the window's, since a person is asked nothing where
/// there is none.
class HistoryQuestion final : public QObject {
  Q_OBJECT

public:
  /// Both are borrowed; `parent` is that of the dialog.
  HistoryQuestion(DocumentSession& session, QWidget& parent);
  ~HistoryQuestion() override;

  /// Whether a command may run: it costs no steps, or a person agrees. Who has agreed is not asked again until there is
  /// another step to lose.
  bool mayRun(QString const& identifier);

private:
  DocumentSession& session_;
  QWidget& parent_;
  bool agreed_ = false;
};
