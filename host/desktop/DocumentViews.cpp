#include "DocumentViews.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"

#include <SysCarto/Map.h>

using SysCarto::MapDocumentHost;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

DocumentViews::DocumentViews(SysCarto::MapDocument& document, QWidget* parent)
    : QStackedWidget(parent),
      document_(document),
      layoutView_(new LayoutView(this)),
      mapView_(new MapView(this)),
      highlight_(new FeatureHighlight(this)),
      listener_([this](bool hasMore) {
        if (!hasMore) return;
        layoutView_->takeNews();
        mapView_->takeNews();
      }) {
  addWidget(layoutView_);
  addWidget(mapView_);
  for (ViewWidget* view : {static_cast<ViewWidget*>(layoutView_), static_cast<ViewWidget*>(mapView_)}) {
    connect(view, &ViewWidget::viewChanged, this, &DocumentViews::changed);
    connect(highlight_, &FeatureHighlight::changed, view, QOverload<>::of(&QWidget::update));
    view->setHighlight(*highlight_);
  }
  follow();
}

// The views let go of the layout while the document still lives.
DocumentViews::~DocumentViews() {
  layoutView_->setLayout(nullptr);
  mapView_->setLayout(nullptr);
}

void DocumentViews::follow() {
  layoutView_->setLayout(document_.GetPageLayout());
  mapView_->setLayout(document_.GetPageLayout());
}

void DocumentViews::redraw() {
  if (auto const layout = document_.GetPageLayout()) SysCarto::PageLayoutHost::followGroups(*layout);
  layoutView_->refresh(SysCarto::RefreshPhase::Everything);
  mapView_->refresh(SysCarto::RefreshPhase::Everything);
}

// The focus may have gone to another map since the view was last shown.
void DocumentViews::setPaused(bool isPaused) {
  layoutView_->setPaused(isPaused);
  mapView_->setPaused(isPaused);
}

void DocumentViews::show(Kind kind) {
  if (kind == Kind::Map) mapView_->setLayout(document_.GetPageLayout());
  setCurrentIndex(static_cast<int>(kind));
  emit changed();
}

void DocumentViews::focusOn(_ptr_t<SysCarto::Map> const& map) {
  auto const layout = document_.GetPageLayout();
  if (!layout || layout->GetFocusMap() == map) return;
  layout->SetFocusMap(map);
  mapView_->setLayout(layout);
  layoutView_->update();
  emit changed();
}

_ptr_t<SysCarto::ActiveView> DocumentViews::activeView() const {
  if (kind() == Kind::Layout) return document_.GetPageLayout();
  return mapView_->map();
}

_ptr_t<PageLayout> DocumentViews::GetPageLayout() const { return document_.GetPageLayout(); }

void DocumentViews::SetPageLayout(_ptr_t<PageLayout> const& layout) {
  MapDocumentHost::setPageLayout(document_, layout);
  follow();
}
