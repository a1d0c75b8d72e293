#pragma once

#include <QFile>
#include <QString>

/// A folder of this process's own that has to go with it, however it ends. It begins with `prefix`.
///
/// A supervisor removes what its worker leaves. Where both are killed at once, the next start of the program does: a
/// file among the user's caches names the folder, and is locked as long as this process lives. Of folders on a network
/// no file tells, so that no start waits for one.
class Leftover {
public:
  static constexpr char prefix[] = ".plotvane-";

  /// To be noted before the folder is made. `target` is what is being written there, as people know it.
  Leftover(QString const& folder, QString const& target);
  ~Leftover();  ///< what is gone is forgotten
  Leftover(Leftover const&) = delete;
  Leftover& operator=(Leftover const&) = delete;

  /// The target is in its place: if the process ends from now on, it is not that which is missing.
  void setWritten();

  /// Has a worker that is forked afterwards share with this process what it notes. False where there is no memory.
  static bool share();

  /// Removes what the worker, which has gone, has left. Answers the first target that was not written, even where the
  /// worker has cleaned up itself.
  static QString clear();

  /// Removes what processes have left that have gone, wherever that lies. Tells nothing.
  static void sweep();

private:
  QString const folder_;
  char* place_ = nullptr;  // in memory that both processes share
  QFile entry_;
};
