#pragma once

#include <QCoreApplication>
#include <QLockFile>
#include <QString>

/// The right to write a document: a file beside it that says who works on it. It goes with the object; one that a
/// process left behind when it died is taken over.
class DocumentLock final {
  Q_DECLARE_TR_FUNCTIONS(DocumentLock)

public:
  explicit DocumentLock(QString const& document);
  DocumentLock(DocumentLock const&) = delete;
  DocumentLock& operator=(DocumentLock const&) = delete;
  ~DocumentLock();

  /// Whether nobody else holds it. Where no lock can be made, as in a folder that can't be written, nobody does.
  bool take();

  /// Whether the last `take` found somebody else.
  bool isForeign() const { return isForeign_; }

  /// Whether it is the lock of that document, by whatever way it is named.
  bool guards(QString const& document) const;

  /// A sentence that says who holds it, where and since when, and what to do where nobody does any more.
  QString holder() const;

  /// Gives back all that this process has: it is about to end.
  static void releaseAll();

private:
  QString const document_;  // as it was named, for sentences
  QString const path_;
  QLockFile lock_;
  bool isForeign_ = false;
};
