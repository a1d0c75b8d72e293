#pragma once

#include <QCoreApplication>

class DocumentSession;
class QWidget;

/// Asks before a command that may cost the undo history its steps: the window's, since a person is asked nothing where
/// there is none.
class HistoryQuestion final {
  Q_DECLARE_TR_FUNCTIONS(HistoryQuestion)

public:
  /// Both are borrowed; `parent` is that of the dialog.
  HistoryQuestion(DocumentSession& session, QWidget& parent);

  /// Whether a command may run: it costs no steps, or a person agrees. The answer is for this one time.
  bool mayRun(QString const& identifier) const;

private:
  DocumentSession& session_;
  QWidget& parent_;
};
