#include <SysAdapterUI/StyleSelectorDlg.h>

#include "host/SysAdapterUI/StyleBrowser.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace SysAdapterUI {

using SysUtility::_ptr_t;

struct StyleSelectorDlg::Private {
  StyleBrowser* browser;
};

StyleSelectorDlg::StyleSelectorDlg(QWidget* parent) : QDialog(parent), d(std::make_unique<Private>()) {
  d->browser = new StyleBrowser(this);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(d->browser);
  layout->addWidget(buttons);
  connect(d->browser, &StyleBrowser::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  setWindowTitle(tr("Styles"));
  resize(760, 560);
}

StyleSelectorDlg::~StyleSelectorDlg() = default;

void StyleSelectorDlg::SetStyleItem(orvSymbologyStyleClass styleClass, _ptr_t<SysUtility::CRef> item) {
  d->browser->show(styleClass, SysUtility::ptr_cast<SysDisplay::Symbol>(item));
}

_ptr_t<SysUtility::CRef> StyleSelectorDlg::GetStyleItem() const { return d->browser->current(); }

}  // namespace SysAdapterUI
