#pragma once

#include <SysFramework/IApplicationHook.h>
#include <SysFramework/IDesktop.h>

class OffscreenContents;

/// The host of commands where there is no window: a document, its page layout shown, and contents that nobody sees.
class OffscreenDesktop final : public IApplicationHook, public IDesktop, public IContentsSite {
public:
  /// `document` is borrowed and outlives the desktop.
  explicit OffscreenDesktop(SysCarto::MapDocument& document);
  ~OffscreenDesktop() override;

  /// What `ICommand::OnCreate` is given.
  void* hook() { return static_cast<IApplicationHook*>(this); }

  SysUtility::_ptr_t<SysCarto::ActiveView> GetActiveView() override;
  SysUtility::_ptr_t<SysCarto::PageLayout> GetPageLayout() override;
  SysCarto::IKdxContents* GetContents() override;

  SysCarto::MapDocument* GetMapDocument() override;
  SysCarto::IKdxContents* GetActiveContents() override;
  SysAdapterUI::TOCControl* GetTOCControl() override;
  SysUtility::_ptr_t<IContentsSite> GetContentsSite() override;

  void SetContents(SysCarto::IKdxContents* contents) override;

private:
  SysCarto::MapDocument& document_;
  SysUtility::_ptr_t<OffscreenContents> ownContents_;
  SysCarto::IKdxContents* contents_;  // borrowed
};
