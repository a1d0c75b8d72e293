#pragma once

#include <SysCarto/IKdxContents.h>

#include <QWidget>

namespace SysCarto {
class MapDocument;
}

/// The contents control of a desktop without a window: never shown, but a parent for what commands show.
class OffscreenContents final : public QWidget, public SysCarto::IKdxContents {
public:
  /// `document` is borrowed and outlives the contents.
  explicit OffscreenContents(SysCarto::MapDocument& document);
  ~OffscreenContents() override;

  SysUtility::_ptr_t<SysCarto::PageLayout> GetPageLayout() const override;
  void SetPageLayout(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout) override;

private:
  void showWholePage();

  SysCarto::MapDocument& document_;
};
