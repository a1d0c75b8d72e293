#pragma once

#include "SlicedWork.h"

#include <QDateTime>
#include <QImage>
#include <QJsonObject>
#include <QLockFile>
#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
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

  /// Begins to write the copy, or removes it, where that has not been done since the last change. The document is read
  /// between events, so that a large one holds nobody up; what is changed meanwhile comes into the copy.
  void update();

  /// Writes the copy at once where that is still to be done, and waits for it. Answers whether the document as it is
  /// now lies on the disk.
  bool keep();

  /// For all copies of the process: what is about to be done may end it. Sessions that can't be kept are passed over.
  static void keepAll();

  /// The same where the process ends now, whatever is open: the next start, on any machine, may have what was kept.
  static void leaveAll();

signals:
  /// A copy could not be written: said once, and again only after one could.
  void told(QString const& sentence);

private:
  // What a copy is of.
  struct Moment {
    int move;        // in the history
    quint64 change;  // outside it, of the document
    quint64 look;    // of anything, which is quick to ask
  };

  Moment now() const;
  bool isOvertaken();
  void begin();
  void proceed();
  void drop();
  bool write(QJsonObject json);
  void noteOutcome(QString const& problem);
  QString put(QByteArray const& text, QByteArray const& known, QImage const& picture);
  QString path(char const* suffix) const;

  DocumentSession& session_;
  std::function<QImage()> const picture_;
  QString const base_;  // of the files' names
  std::unique_ptr<QLockFile> lock_;
  int moves_ = 0;                       // in the history so far
  std::optional<Moment> begun_;         // none for no copy
  int overtaken_ = 0;                   // how often, since one was whole
  std::optional<QJsonObject> json_;     // of the document, while that is being read
  std::unique_ptr<SlicedWork> work_;    // that reads it
  std::atomic<bool> hasFailed_{false};  // what was begun last
  std::atomic<bool> isTold_{false};     // that it has
  QByteArray written_;                  // digest of the text; the writer's
  QTimer timer_, slices_;
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
  bool isSaved() const;

  QString base_, file_;
  QDateTime time_;
  bool relativePaths_ = true;
  QByteArray digest_;  // of the document's own file when it was last read or written
  std::shared_ptr<QLockFile> lock_;
};
