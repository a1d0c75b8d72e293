#pragma once

#include <QDateTime>
#include <QImage>
#include <QLockFile>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

class DocumentSession;

/// Where copies lie: beside the user's data.
QString recoveryFolder();

/// Keeps a copy of the session's document while that holds what its file does not, so that a crash or a power cut costs
/// half a minute of work at most. It goes when the document is saved or given up, and with this object.
class RecoveryCopy final : public QObject {
  Q_OBJECT

public:
  static constexpr int intervalMs = 30000;

  /// The session is borrowed. `picture` is asked for what a person will know the document by; it must be quick.
  RecoveryCopy(DocumentSession& session, std::function<QImage()> picture);
  ~RecoveryCopy() override;

  /// Writes the copy, or removes it, where that has not been done since the last change.
  void update();

  /// Waits for what `update` began. Answers whether the document as it was then lies on the disk.
  bool finish();

private:
  QString path(char const* suffix) const;

  DocumentSession& session_;
  std::function<QImage()> const picture_;
  QString const base_;  // of the files' names
  std::unique_ptr<QLockFile> lock_;
  QByteArray begun_;                    // to be written, of the document; empty for no copy
  std::atomic<bool> hasFailed_{false};  // what was begun last
  quint64 lookedAt_ = 0;
  int step_ = -1;  // of the history, when it was last looked at
  QTimer timer_;
  QThreadPool writer_;  // one thread, so that one thing comes after the other
};

/// A copy that its process left behind. Nobody else is offered it as long as this object lives.
class LostDocument {
public:
  /// All there are, the latest first.
  static std::vector<LostDocument> all();

  QString const& file() const { return file_; }  ///< the document's own; empty for one that was never saved
  QDateTime const& time() const { return time_; }
  QImage picture() const;

  /// Where the copy lies: a document of its own, whose paths are absolute.
  QString copy() const;

  /// Gives it to the session, as a document of its own file that is not saved. False, with a sentence in
  /// `DocumentSession::takeProblem`, where it can't be read.
  bool recover(DocumentSession& session) const;

  void discard() const;

private:
  QString base_, file_;
  QDateTime time_;
  bool relativePaths_ = true;
  QByteArray digest_;  // of the document's own file when it was last read or written
  std::shared_ptr<QLockFile> lock_;
};
