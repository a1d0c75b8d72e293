#pragma once

#include "EndSignals.h"

#include <QObject>

#include <optional>

/// The end of a process with a window that comes from outside, as when a session ends.
///
/// While the object lives, a signal that asks for the end is answered between two events: what is not saved is kept as
/// a copy, documents are unlocked and what was half written is removed; then the process dies of the signal. A second
/// one ends it at once, as does the first where no event is handled for some seconds. One object at a time, before
/// anything is written.
class Farewell final : public QObject {
public:
  Farewell();
  ~Farewell() override;

  /// Does what a signal would have done before it ends the process; nothing without an object, or off its thread. For
  /// the moment at which Qt is about to end the process, since the display has gone.
  static void leave();

private:
  void die();

  std::optional<EndSignals> signals_;
};
