#include "OpenedGroup.h"

#include "host/SysCarto/elements/ElementHost.h"

#include <algorithm>

namespace SysCarto {

using SysUtility::_ptr_t;

namespace {

// A page's handles are lower. At most 16 groups lie in each other.
constexpr ElementHandle handlesOfAGroup = 50000000, lowestOfMembers = 1000000000;

}  // namespace

OpenedGroup::OpenedGroup(ElementContainer& parent, ElementHandle group, int depth)
    : parent_(parent), handle_(group), lowest_(lowestOfMembers + depth * handlesOfAGroup) {
  read();
}
OpenedGroup::~OpenedGroup() = default;

_ptr_t<GroupElement> OpenedGroup::group() const { return SysUtility::ptr_cast<GroupElement>(parent_.find(handle_)); }

void OpenedGroup::read() {
  known_ = group();
  members_ = std::make_unique<ElementContainer>();
  members_->setPlaceholders(parent_.placeholders());
  members_->setLowestHandle(lowest_);
  for (auto const& member : known_ ? known_->GetElements() : QList<_ptr_t<Element>>())
    members_->AddElement(member->Clone());
  members_->setOwner([this] { write(); });
  knownChange_ = parent_.lastChange();
}

void OpenedGroup::write() {
  auto const former = group();
  if (!former) return;
  auto const members = members_->GetElements();
  if (members.isEmpty()) return parent_.DeleteElement(former);
  known_ = SysUtility::make<GroupElement>();
  known_->SetName(former->GetName());
  known_->SetVisible(ElementHost::isSwitchedOn(*former));
  ElementHost::setPages(*known_, ElementHost::pages(*former));
  ElementHost::setLocked(*known_, ElementHost::isLocked(*former));
  for (auto const& member : members) known_->AddElement(member->Clone());
  parent_.ReplaceElement(handle_, known_);
  knownChange_ = parent_.lastChange();
}

// Where there are as many as before, each keeps its handle, and what is selected stays so.
void OpenedGroup::follow() {
  auto const now = group();
  if (!now || (now == known_ && knownChange_ == parent_.lastChange())) return;
  auto const former = members_->GetElements(), members = now->GetElements();
  for (auto const& element : former) lowest_ = std::max(lowest_, element->GetHandle());
  if (members.size() != former.size()) return read();
  known_ = now;
  knownChange_ = parent_.lastChange();
  members_->setOwner(nullptr);
  for (int i = 0; i < members.size(); ++i) members_->ReplaceElement(former[i]->GetHandle(), members[i]->Clone());
  members_->setOwner([this] { write(); });
}

}  // namespace SysCarto
