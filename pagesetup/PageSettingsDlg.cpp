#include "PageSettingsDlg.h"

#include "PageSizeTabPage.h"
#include "ui_PageSettingsDlg.h"

#include <SysAdapterUI/FramePropertyWidget.h>

using SysAdapterUI::FramePropertyWidget;
using SysCarto::ActiveView;
using SysCarto::IFrameProperties;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;
using SysUtility::ptr_cast;

namespace {

// A part that is not there stays so.
template <class Part>
_ptr_t<Part> copyOf(_ptr_t<Part> const& part) {
  return part ? part->Clone() : nullptr;
}

}  // namespace

PageSettingsDlg::PageSettingsDlg(_ptr_t<ActiveView> const& view, QWidget* parent)
    : QDialog(parent), ui_(std::make_unique<Ui::PageSettingsDlg>()), layout_(ptr_cast<PageLayout>(view)) {
  ui_->setupUi(this);
  ui_->tabWidget->clear();
  ui_->pushButton_Apply->setEnabled(false);
  addTabs(view);
  setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
  connectWidgets();
}

PageSettingsDlg::~PageSettingsDlg() = default;

void PageSettingsDlg::addTabs(_ptr_t<ActiveView> const& view) {
  sizeTab_ = new PageSizeTabPage(view, this);
  ui_->tabWidget->addTab(sizeTab_, tr("Map Page Size"));

  IFrameProperties const& frame = *layout_->GetPage();
  frameTab_ = new FramePropertyWidget(ptr_cast<SysCarto::SymbolBorder>(frame.GetBorder()),
                                      ptr_cast<SysCarto::SymbolBackground>(frame.GetBackground()),
                                      ptr_cast<SysCarto::SymbolShadow>(frame.GetShadow()), nullptr);
  ui_->tabWidget->addTab(frameTab_, tr("Frame"));

  // The buttons come after the fields of the tabs, which were added later.
  QWidget* last = previousInFocusChain();
  while (last->focusPolicy() == Qt::NoFocus) last = last->previousInFocusChain();
  for (QPushButton* button : {ui_->pushButton_OK, ui_->pushButton_Cancel, ui_->pushButton_Apply}) {
    setTabOrder(last, button);
    last = button;
  }
}

void PageSettingsDlg::connectWidgets() {
  connect(ui_->pushButton_OK, &QPushButton::clicked, this, &PageSettingsDlg::slotOK);
  connect(ui_->pushButton_Cancel, &QPushButton::clicked, this, &PageSettingsDlg::slotCancel);
  connect(ui_->pushButton_Apply, &QPushButton::clicked, this, &PageSettingsDlg::slotApply);
  connect(sizeTab_, &PageSizeTabPage::ValueChanged, this, &PageSettingsDlg::On_ValueChanged);
  connect(frameTab_, &FramePropertyWidget::ValueChanged, this, &PageSettingsDlg::On_ValueChanged);
}

void PageSettingsDlg::slotOK() {
  if (ui_->pushButton_Apply->isEnabled()) slotApply();
  accept();
}

void PageSettingsDlg::slotCancel() { reject(); }

void PageSettingsDlg::slotApply() {
  ui_->pushButton_Apply->setEnabled(false);
  sizeTab_->ApplyToPage();

  IFrameProperties& frame = *layout_->GetPage();
  frame.SetBorder(copyOf(frameTab_->GetBorder()));
  frame.SetBackGround(copyOf(frameTab_->GetBackground()));
  frame.SetShadow(copyOf(frameTab_->GetShadow()));

  layout_->ZoomToWholePage();
  layout_->Refresh(0, false);
}

void PageSettingsDlg::On_ValueChanged() { ui_->pushButton_Apply->setEnabled(true); }
