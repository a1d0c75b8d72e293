#pragma once

#include <SysCarto/PageLayout.h>

#include <QDialog>

#include <memory>

class PageSizeTabPage;
namespace SysAdapterUI {
class FramePropertyWidget;
}
namespace Ui {
class PageSettingsDlg;
}

/// Edits the page of a layout: its size on one tab, its frame on another. Changes reach the page with Apply and OK, and
/// are not undoable.
class PageSettingsDlg : public QDialog {
  Q_OBJECT

public:
  /// `view` is a layout that has a page; the dialog holds it.
  PageSettingsDlg(SysUtility::_ptr_t<SysCarto::ActiveView> const& view, QWidget* parent);
  ~PageSettingsDlg() override;

private slots:
  void slotOK();
  void slotCancel();
  void slotApply();
  void On_ValueChanged();

private:
  void addTabs(SysUtility::_ptr_t<SysCarto::ActiveView> const& view);
  void connectWidgets();

  std::unique_ptr<Ui::PageSettingsDlg> ui_;
  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  PageSizeTabPage* sizeTab_ = nullptr;                     // owned by the tab widget
  SysAdapterUI::FramePropertyWidget* frameTab_ = nullptr;  // owned by the tab widget
};
