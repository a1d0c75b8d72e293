#pragma once

#include "host/SysCarto/elements/ElementContainer.h"

#include <SysCarto/GroupElement.h>

#include <memory>

namespace SysCarto {

/// A group that a person works in: its members lie in a container of their own, with handles that no element of the
/// page has. What an operation changes there it changes in the group, too, as a part of the same step; without a member
/// left the group goes.
class OpenedGroup {
public:
  /// `parent` is borrowed and outlives the object.
  OpenedGroup(ElementContainer& parent, ElementHandle group, int depth);
  ~OpenedGroup();
  OpenedGroup(OpenedGroup const&) = delete;
  OpenedGroup& operator=(OpenedGroup const&) = delete;

  ElementContainer& members() { return *members_; }
  ElementHandle handle() const { return handle_; }

  /// The group itself; empty where it has gone.
  SysUtility::_ptr_t<GroupElement> group() const;

  /// Takes over what others made of the group, such as a step of the history.
  void follow();

private:
  void read();
  void write();

  ElementContainer& parent_;
  ElementHandle const handle_;
  ElementHandle lowest_;                    // handles of the members are higher
  SysUtility::_ptr_t<GroupElement> known_;  // as its members were read or written last
  quint64 knownChange_ = 0;                 // of the parent at that time: a group may be changed in place, too
  std::unique_ptr<ElementContainer> members_;
};

}  // namespace SysCarto
