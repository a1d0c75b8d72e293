#include "LayerPanels.h"

#include "AttributePanel.h"
#include "IdentifyPanel.h"

#include "host/desktop/Workbench.h"

#include <QMainWindow>

using SysCarto::VectorLayer;
using SysUtility::_ptr_t;

LayerPanels::LayerPanels(Workbench& bench, QMainWindow& window)
    : attributes_(new AttributePanel(bench.session(), bench.views(), &window)),
      features_(new IdentifyPanel(bench.session(), bench.views(), &window)) {
  window.addDockWidget(Qt::BottomDockWidgetArea, attributes_);
  window.addDockWidget(Qt::RightDockWidgetArea, features_);
  attributes_->hide();
  features_->hide();
  connect(&bench.session(), &DocumentSession::replaced, this, [this] {
    choose(nullptr, nullptr);
    attributes_->follow();
    features_->follow();
  });
  connect(&bench.session(), &DocumentSession::historyChanged, attributes_, &AttributePanel::follow);
  connect(&bench.session(), &DocumentSession::historyChanged, features_, &IdentifyPanel::follow);
  connect(&bench.views(), &DocumentViews::identified, features_, &IdentifyPanel::show);
  connect(attributes_, &AttributePanel::told, this, &LayerPanels::told);
  connect(features_, &IdentifyPanel::told, this, &LayerPanels::told);
}

LayerPanels::~LayerPanels() = default;

void LayerPanels::choose(_ptr_t<SysCarto::Map> const& map, _ptr_t<SysCarto::Layer> const& layer) {
  map_ = map;
  layer_ = layer;
}

bool LayerPanels::hasTable() const { return static_cast<bool>(SysUtility::ptr_cast<VectorLayer>(layer_)); }

void LayerPanels::showTable() { attributes_->showLayer(map_, SysUtility::ptr_cast<VectorLayer>(layer_)); }
