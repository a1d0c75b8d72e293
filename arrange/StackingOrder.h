#pragma once

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Hands the selection to the container to be restacked. One undo step.
class StackingOrderCommand : public SysFramework::BaseCommand {
public:
  struct Row;

  bool IsEnable() override;
  void OnClick() override;

protected:
  explicit StackingOrderCommand(Row const& row);

private:
  Row const* row_;
};

class BringForwardElements final : public StackingOrderCommand {
public:
  BringForwardElements();
};

class BringToFrontElements final : public StackingOrderCommand {
public:
  BringToFrontElements();
};

class SendBackwardElements final : public StackingOrderCommand {
public:
  SendBackwardElements();
};

class SendToBackElements final : public StackingOrderCommand {
public:
  SendToBackElements();
};

}  // namespace Plugin
