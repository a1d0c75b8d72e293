#pragma once

#include <SysFramework/IApplicationHook.h>
#include <SysFramework/IDesktop.h>

/// What commands reach of their host: the hook, the desktop behind it, and the place of its contents.
class Desktop : public IApplicationHook, public IDesktop, public IContentsSite {
public:
  ~Desktop() override;

  /// What `ICommand::OnCreate` is given.
  void* hook() { return static_cast<IApplicationHook*>(this); }

  SysUtility::_ptr_t<SysCarto::PageLayout> GetPageLayout() override;
  SysCarto::IKdxContents* GetContents() override;

  SysCarto::MapDocument* GetMapDocument() override;
  SysCarto::IKdxContents* GetActiveContents() override;
  SysAdapterUI::TOCControl* GetTOCControl() override;
  SysUtility::_ptr_t<IContentsSite> GetContentsSite() override;

  /// Null puts the desktop's own contents back.
  void SetContents(SysCarto::IKdxContents* contents) override;

protected:
  /// Both are borrowed and outlive the desktop.
  Desktop(SysCarto::MapDocument& document, SysCarto::IKdxContents& ownContents);

private:
  SysCarto::MapDocument& document_;
  SysCarto::IKdxContents& ownContents_;
  SysCarto::IKdxContents* contents_;
};
