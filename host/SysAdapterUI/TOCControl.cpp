#include <SysAdapterUI/TOCControl.h>

#include "ContentsTree.h"

#include <SysCarto/Map.h>
#include <SysCarto/PageLayout.h>

#include <QVBoxLayout>

using SysCarto::LayerRow;
using SysCarto::Map;
using SysUtility::_ptr_t;

namespace SysAdapterUI {

struct TOCControl::Private {
  ContentsTree* tree = nullptr;
};

TOCControl::TOCControl(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>()) {
  d->tree = new ContentsTree(this);
  setFocusProxy(d->tree);
  auto* const box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->addWidget(d->tree);
  connect(d->tree, &ContentsTree::mapChosen, this, &TOCControl::MapChosen);
  connect(d->tree, &ContentsTree::rowsChosen, this, [this](QVector<LayerRow> const& rows) {
    if (!rows.isEmpty()) emit RowChosen(rows.last().map, rows.last().layer);
  });
}

TOCControl::~TOCControl() = default;

void TOCControl::SetBuddy(SysCarto::IKdxContents* contents) {
  d->tree->setContents(contents);
  auto const layout = contents ? contents->GetPageLayout() : nullptr;
  ShowFocus(layout ? layout->GetFocusMap() : nullptr);
}

void TOCControl::ShowFocus(_ptr_t<Map> const& map) { d->tree->setFocusMap(map); }
void TOCControl::Refresh() { d->tree->follow(); }

}  // namespace SysAdapterUI
