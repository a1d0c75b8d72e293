#pragma once

#include <SysFramework/BaseCommand.h>

namespace Plugin {

/// Sets the zoom of the layout view, while it is shown.
class PageZoomCommand : public SysFramework::BaseCommand {
public:
  bool IsEnable() override;
  void OnClick() override;

protected:
  virtual void zoom(SysCarto::PageLayout& layout) = 0;
};

/// Shows the whole page.
class PageFullExtent final : public PageZoomCommand {
protected:
  void zoom(SysCarto::PageLayout& layout) override;
};

/// Shows the page at zoom ratio 1.
class PageZoomToOrigin final : public PageZoomCommand {
protected:
  void zoom(SysCarto::PageLayout& layout) override;
};

/// Steps through the extents that the layout view has shown.
class ExtentStepCommand : public SysFramework::BaseCommand {
public:
  bool IsEnable() override;
  void OnClick() override;

protected:
  struct Direction {
    bool (IExtentStack::*canStep)() const;
    void (IExtentStack::*step)();
  };
  explicit ExtentStepCommand(Direction direction);

private:
  Direction direction_;
};

class ZoomToPreviousExtentCommand final : public ExtentStepCommand {
public:
  ZoomToPreviousExtentCommand();
};

class ZoomToNextExtentCommand final : public ExtentStepCommand {
public:
  ZoomToNextExtentCommand();
};

}  // namespace Plugin
