#pragma once

#include "host/SysCarto/document/Editable.h"

#include <QElapsedTimer>

class DocumentSession;

/// Changes of fields by a person in one place. Those of the same field that follow each other quickly, as a key is held
/// or a wheel is turned, are one step of the history.
class FieldChanges {
public:
  /// `session` is borrowed.
  explicit FieldChanges(DocumentSession& session) : session_(session) {}

  /// As `Editable::set`. Changes with the same `joining` may be one; an empty text is joined with none.
  QString set(SysCarto::Editable::List const& things, QStringList const& path, SysUtility::NewValue const& value,
              QString const& joining, QStringList& warnings);

  /// Something else is shown: what comes is joined with nothing that was.
  void forget() { last_ = {}; }

private:
  // The change before, while one of the same field soon after is the same step.
  struct Last {
    QString joining;
    int step = -1;  // of the history, after it
    QElapsedTimer clock;
  };

  DocumentSession& session_;
  Last last_;
};
