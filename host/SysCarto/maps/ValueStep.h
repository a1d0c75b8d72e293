#pragma once

#include "host/SysCarto/elements/EditorHost.h"
#include "host/SysUtility/ChangeMark.h"

#include <SysUtility/CRef.h>

#include <QUndoStack>

#include <functional>
#include <memory>
#include <utility>

namespace SysCarto {

/// A step of the history: something that stays where it is (a page, a map, a layer) has another value.
template <class Target, class Value>
class ValueStep final : public QUndoCommand {
public:
  using Put = std::function<void(Target&, Value const&)>;

  /// Steps with the same `joining` about one target become one where they follow each other; −1 for none. What
  /// somebody has gone back to stays a place of its own.
  ValueStep(QString const& name, int joining, Target& target, Value before, Value after, Put put)
      : QUndoCommand(name),
        joining_(joining),
        target_(SysUtility::retain(&target)),
        before_(std::move(before)),
        after_(std::move(after)),
        put_(std::move(put)),
        followsUndo_(EditorHost::history() && EditorHost::history()->canRedo()) {}

  void undo() override { set(before_); }
  void redo() override { set(after_); }
  int id() const override { return joining_; }
  bool mergeWith(QUndoCommand const* next) override {
    auto const* const step = static_cast<ValueStep const*>(next);
    if (step->target_ != target_ || step->followsUndo_) return false;
    after_ = step->after_;
    return true;
  }

private:
  void set(Value const& value) {
    SysUtility::ChangeMark::Step const step;
    put_(*target_, value);
  }

  int const joining_;
  SysUtility::_ptr_t<Target> const target_;
  Value const before_;
  Value after_;
  Put const put_;
  bool const followsUndo_;
};

/// Does a step, and gives it to the history of the document that is being edited.
inline void takeStep(std::unique_ptr<QUndoCommand> step) { EditorHost::take(std::move(step)); }

}  // namespace SysCarto
