#pragma once

#include "Dialogs.h"
#include "LayoutHook.h"

#include <SysAdapterUI/PageLayoutControl.h>
#include <SysAdapterUI/TOCControl.h>
#include <SysFramework/IDesktop.h>

#include <functional>

/// A desktop with a control that shows a layout and has a companion. Both note what they are asked.
class InsertDesktop final : public LayoutHook, public IDesktop, public IContentsSite {
public:
  class Contents final : public QWidget, public SysAdapterUI::PageLayoutControl, public SysAdapterUI::ICompanion {
  public:
    explicit Contents(InsertDesktop& desktop) : layout(desktop.layout), desktop_(desktop) {}
    ~Contents() override { SysCarto::ActiveViewHost::setSurface(*layout, nullptr); }

    _ptr_t<SysCarto::PageLayout> GetPageLayout() const override { return layout; }
    void SetPageLayout(_ptr_t<SysCarto::PageLayout> const& next) override {
      desktop_.calls << "set layout";
      layout = next;
      SysCarto::ActiveViewHost::setSurface(*layout, &desktop_.surface);
    }
    SysAdapterUI::ICompanion* GetCompanion() override { return this; }
    void SetBuddy(SysCarto::IKdxContents* contents) override {
      desktop_.calls << (contents == this ? "companion" : "companion of another");
      if (onCompanion) onCompanion();
    }

    _ptr_t<SysCarto::PageLayout> layout;
    std::function<void()> onCompanion;

  private:
    InsertDesktop& desktop_;
  };

  using LayoutHook::LayoutHook;

  SysCarto::IKdxContents* GetContents() override { return contents.get(); }
  SysCarto::MapDocument* GetMapDocument() override {
    calls << "document";
    return nullptr;
  }
  SysCarto::IKdxContents* GetActiveContents() override {
    calls << "contents";
    return contents.get();
  }
  SysAdapterUI::TOCControl* GetTOCControl() override {
    calls << "table of contents";
    return table;
  }
  _ptr_t<IContentsSite> GetContentsSite() override { return SysUtility::retain<IContentsSite>(this); }
  void SetContents(SysCarto::IKdxContents* shown) override {
    calls << (shown == contents.get() ? "site" : "site of another");
  }

  _ptr_t<Contents> contents = make<Contents>(*this);
  SysAdapterUI::TOCControl* table = new SysAdapterUI::TOCControl(contents.get());
};
