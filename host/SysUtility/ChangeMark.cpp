#include "ChangeMark.h"

namespace SysUtility {

namespace {

quint64 lastTick = 0;
int openSteps = 0;

}  // namespace

ChangeMark::Step::Step() { ++openSteps; }
ChangeMark::Step::~Step() { --openSteps; }

quint64 ChangeMark::now() { return lastTick; }

bool ChangeMark::raise() {
  if (openSteps > 0) return false;
  time_ = ++lastTick;
  return true;
}

}  // namespace SysUtility
