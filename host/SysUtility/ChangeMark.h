#pragma once

#include <SysUtility/Export.h>

#include <QtGlobal>

namespace SysUtility {

/// When a stored thing was last changed outside the history's steps, by a clock of the process that ticks with each
/// such change. Whether something was changed since it was saved is a comparison of two times.
class SYSUTILITY_EXPORT ChangeMark {
public:
  /// While one lives, changes belong to a step of the history and leave no mark: the history counts them itself.
  class SYSUTILITY_EXPORT Step {
  public:
    Step();
    ~Step();
    Step(Step const&) = delete;
    Step& operator=(Step const&) = delete;
  };

  /// Of the last change of anything.
  static quint64 now();

  /// 0 for never.
  quint64 time() const { return time_; }

  /// Answers false, and does nothing, within a step.
  bool raise();

  /// Gives something stored another value.
  template <class T>
  void set(T& stored, T const& value) {
    if (stored == value) return;
    stored = value;
    raise();
  }

private:
  quint64 time_ = 0;
};

}  // namespace SysUtility
