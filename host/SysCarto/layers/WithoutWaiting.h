#pragma once

#include "host/SysGeometry/Box.h"

#include <SysCarto/Export.h>

#include <QDeadlineTimer>

#include <functional>
#include <optional>

namespace SysCarto {

/// While one lives, layers that are drawn, labelled or asked on this thread don't wait for features that have to be
/// read first. Other threads read these, what is there is drawn, and `ReadingListener` tells of more: for pictures that
/// are drawn again then. Placing labels goes on for a moment whenever it is asked for.
class SYSCARTO_EXPORT WithoutWaiting {
public:
  WithoutWaiting();
  ~WithoutWaiting();
  WithoutWaiting(WithoutWaiting const&) = delete;
  WithoutWaiting& operator=(WithoutWaiting const&) = delete;

  /// The one of this thread; null where who asks waits.
  static WithoutWaiting* current();

  /// What of a map somebody looks at, in its units, where that is less than its frame. Without it: all.
  std::optional<SysGeometry::Box> seen;

  /// Whether something was missing.
  bool isIncomplete = false;

  /// Whether labels are not placed yet, and asking for them again goes on with that.
  bool hasMoreToDo = false;

  /// Whether the moment is over.
  bool isTimeUp() const { return clock_.hasExpired(); }

private:
  WithoutWaiting* const around_;
  QDeadlineTimer const clock_;
};

/// Calls a function, on the thread of the user interface, when features begin to be read that nobody waits for, and
/// when there are more of them to show.
class SYSCARTO_EXPORT ReadingListener {
public:
  explicit ReadingListener(std::function<void(bool hasMore)> told);
  ~ReadingListener();
  ReadingListener(ReadingListener const&) = delete;
  ReadingListener& operator=(ReadingListener const&) = delete;

  /// Calls them all.
  static void tell(bool hasMore);

  /// Calls them all in a turn of its own, since something begins to be read or is given up.
  static void tellSoon();

private:
  std::function<void(bool)> const told_;
};

}  // namespace SysCarto
