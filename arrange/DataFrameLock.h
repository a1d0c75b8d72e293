#pragma once

#include <SysFramework/BaseCommand.h>

/// Locks every data frame of the view, after taking it out of the selection. Not an undo step.
class LockDataFrame final : public SysFramework::BaseCommand {
public:
  LockDataFrame();
  bool IsEnable() override;
  void OnClick() override;
};

/// Unlocks every data frame of the view. Not an undo step.
class UnlockDataFrame final : public SysFramework::BaseCommand {
public:
  UnlockDataFrame();
  bool IsEnable() override;
  void OnClick() override;
};
