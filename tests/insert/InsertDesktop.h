#pragma once

#include "Dialogs.h"
#include "LayoutHook.h"
#include "RecordingSurface.h"

#include <SysAdapterUI/PageLayoutControl.h>
#include <SysFramework/IDesktop.h>

#include <QStringList>
#include <QWidget>

#include <functional>

/// Notes in which order a command asks for what. Each entry may add what it saw then.
using CallLog = QStringList;

/// A control that shows a layout, with a companion.
class LoggedContents final : public QWidget, public SysAdapterUI::PageLayoutControl, public SysAdapterUI::ICompanion {
public:
  explicit LoggedContents(CallLog& log) : log_(log) {}

  _ptr_t<SysCarto::PageLayout> GetPageLayout() const override { return layout; }
  void SetPageLayout(_ptr_t<SysCarto::PageLayout> const& next) override {
    log_ << QStringLiteral("set layout");
    layout = next;
    layout->setSurface(surface);
  }
  SysAdapterUI::ICompanion* GetCompanion() override { return this; }
  void SetBuddy(SysCarto::IKdxContents* contents) override {
    log_ << (contents == this ? QStringLiteral("companion") : QStringLiteral("companion of another"));
    if (onCompanion) onCompanion();
  }

  _ptr_t<SysCarto::PageLayout> layout;
  SysCarto::ViewSurface* surface = nullptr;
  std::function<void()> onCompanion;

private:
  CallLog& log_;
};
