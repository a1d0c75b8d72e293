#include <SysAdapterUI/TOCControl.h>

#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/maps/MapSteps.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <SysCarto/Map.h>
#include <SysGeometry/Polyline.h>

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QSet>
#include <QStyle>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <cmath>

using SysCarto::Layer;
using SysCarto::Map;
using SysDisplay::DisplayTransformation;
using SysDisplay::Symbol;
using SysDisplay::SymbolType;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace SysAdapterUI {

namespace {

constexpr QSize swatchPx(24, 16);
constexpr int marginPx = 3;
constexpr double swatchScale = 0.75;  // a symbol made for paper is a little large for a list
constexpr double wavePx = 3;

// A geometry of the kind that the symbol draws, in pixels with y upwards.
_ptr_t<SysGeometry::Geometry> sampleFor(Symbol const& symbol) {
  double const right = swatchPx.width() - marginPx, top = swatchPx.height() - marginPx, middle = swatchPx.height() / 2;
  if (symbol.GetType() == SymbolType::Marker) return make<SysGeometry::Point>(swatchPx.width() / 2.0, middle, 0.0);
  if (symbol.GetType() == SymbolType::Fill) return make<Envelope>(marginPx, marginPx, right, top);
  auto const line = make<SysGeometry::Polyline>();
  for (int x = marginPx; x <= right; ++x)
    line->AddPoint(x, middle + wavePx * std::sin((x - marginPx) * 2 * M_PI / (right - marginPx)));
  return line;
}

QPixmap swatch(Symbol const& symbol, double devicePixelRatio) {
  QPixmap picture(swatchPx * devicePixelRatio);
  picture.fill(Qt::transparent);
  auto const transformation = make<DisplayTransformation>();
  transformation->SetDeviceFrame(picture.rect());
  transformation->SetVisibleBounds(make<Envelope>(0.0, 0.0, swatchPx.width(), swatchPx.height()));
  transformation->SetPageScale(swatchScale * devicePixelRatio);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  symbol.Draw(painter, transformation, sampleFor(symbol));
  painter.end();
  picture.setDevicePixelRatio(devicePixelRatio);
  return picture;
}

class MapItem final : public QTreeWidgetItem {
public:
  explicit MapItem(_ptr_t<Map> const& map) : map(map) { setText(0, map->GetName()); }
  void setFocused(bool on) {
    QFont font = this->font(0);
    if (font.bold() == on) return;
    font.setBold(on);
    setFont(0, font);
    setToolTip(0, on ? QString() : TOCControl::tr("Click to work on this map"));
  }
  _ptr_t<Map> const map;
};

// One symbol stands beside the layer's name; several have a row each. A layer that could not be read has a sign.
void addSymbols(QTreeWidgetItem& item, Layer const& layer, double devicePixelRatio) {
  auto const* const vector = dynamic_cast<SysCarto::VectorLayer const*>(&layer);
  if (!vector) return;
  item.setToolTip(0, vector->problem());
  if (!vector->problem().isEmpty()) {
    item.setIcon(0, QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning));
    return;
  }
  auto const& classes = vector->renderer().classes();
  for (SysCarto::SymbolClass const& one : classes) {
    if (!one.symbol) continue;
    QTreeWidgetItem* row = &item;
    if (classes.size() > 1) {
      row = new QTreeWidgetItem(&item, {one.label.isEmpty() ? TOCControl::tr("Other") : one.label});
      row->setFlags(Qt::ItemIsEnabled);
    }
    row->setIcon(0, swatch(*one.symbol, devicePixelRatio));
  }
}

// The row stands for the layer as long as the tree shows it; it is rebuilt with each new list.
class LayerItem final : public QTreeWidgetItem {
public:
  explicit LayerItem(_ptr_t<Layer> const& layer) : layer(layer) {
    setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  }
  void show(double devicePixelRatio) {
    quint64 const look = SysCarto::LayerHost::look(*layer);
    if (text(0) == layer->GetName() && look_ == look) return;
    look_ = look;
    setText(0, layer->GetName());
    setCheckState(0, layer->IsVisible() ? Qt::Checked : Qt::Unchecked);
    qDeleteAll(takeChildren());
    setIcon(0, QIcon());
    addSymbols(*this, *layer, devicePixelRatio);
  }
  _ptr_t<Layer> const layer;

private:
  quint64 look_ = 0;  // of the layer when it was shown last
};

// The map or the layer that a row stands for; null for the rows within a layer.
void const* thingOf(QTreeWidgetItem const& item) {
  if (auto const* const row = dynamic_cast<LayerItem const*>(&item)) return row->layer.get();
  auto const* const row = dynamic_cast<MapItem const*>(&item);
  return row ? row->map.get() : nullptr;
}

}  // namespace

struct TOCControl::Private {
  QTreeWidget* tree = nullptr;

  template <class Use>
  void forEach(Use const& use) const {
    for (QTreeWidgetItemIterator item(tree); *item; ++item) use(**item);
  }
};

TOCControl::TOCControl(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>()) {
  d->tree = new QTreeWidget(this);
  d->tree->setObjectName(QStringLiteral("treeWidget_Contents"));
  d->tree->setHeaderHidden(true);
  d->tree->setIconSize(swatchPx);
  d->tree->setFrameShape(QFrame::NoFrame);
  auto* const box = new QVBoxLayout(this);
  box->setContentsMargins(0, 0, 0, 0);
  box->addWidget(d->tree);
  connect(d->tree, &QTreeWidget::itemChanged, this, [](QTreeWidgetItem* item) {
    auto* const row = dynamic_cast<LayerItem*>(item);
    bool const isOn = item->checkState(0) == Qt::Checked;
    if (row) SysCarto::MapSteps::setVisible(*row->layer, isOn);
  });
  for (auto const chosen : {&QTreeWidget::itemClicked, &QTreeWidget::itemActivated})
    connect(d->tree, chosen, this, [this](QTreeWidgetItem* item) {
      if (auto const* const row = dynamic_cast<MapItem*>(item)) emit MapChosen(row->map);
      tellRow(item);
    });
  // The first one becomes current when the keys come here, which nobody has chosen.
  connect(d->tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item, QTreeWidgetItem* former) {
    if (former) tellRow(item);
  });
}

TOCControl::~TOCControl() = default;

// A row of a class stands for its layer.
void TOCControl::tellRow(QTreeWidgetItem* item) {
  _ptr_t<Layer> layer;
  for (; item; item = item->parent()) {
    if (auto const* const row = dynamic_cast<LayerItem*>(item)) layer = row->layer;
    if (auto const* const row = dynamic_cast<MapItem*>(item)) return emit RowChosen(row->map, layer);
  }
}

void TOCControl::SetBuddy(SysCarto::IKdxContents* contents) {
  QSignalBlocker const quiet(d->tree);
  // What is there again is as open as it was, and the current row stays it.
  QSet<void const*> open;
  void const* const current = d->tree->currentItem() ? thingOf(*d->tree->currentItem()) : nullptr;
  QSet<void const*> known;
  d->forEach([&](QTreeWidgetItem& item) {
    known << thingOf(item);
    if (item.isExpanded()) open << thingOf(item);
  });
  d->tree->clear();
  auto const layout = contents ? contents->GetPageLayout() : nullptr;
  QList<_ptr_t<Map>> maps;
  if (layout) layout->GetMaps(maps);
  for (auto const& map : qAsConst(maps)) {
    auto* const mapItem = new MapItem(map);
    d->tree->addTopLevelItem(mapItem);
    mapItem->setExpanded(!known.contains(map.get()) || open.contains(map.get()));
    for (int i = map->GetLayerCount() - 1; i >= 0; --i) {  // what is drawn last lies on top
      auto* const item = new LayerItem(map->GetLayer(i));
      mapItem->addChild(item);
      item->show(devicePixelRatioF());
      item->setExpanded(open.contains(map->GetLayer(i).get()));
    }
  }
  d->forEach([&](QTreeWidgetItem& item) {
    if (current && thingOf(item) == current) d->tree->setCurrentItem(&item);
  });
  if (maps.isEmpty()) {
    auto* const empty = new QTreeWidgetItem(d->tree, {tr("No maps on this page")});
    empty->setFlags(Qt::NoItemFlags);
  }
  ShowFocus(layout ? layout->GetFocusMap() : nullptr);
}

void TOCControl::ShowFocus(_ptr_t<Map> const& map) {
  QSignalBlocker const quiet(d->tree);
  for (int i = 0; i < d->tree->topLevelItemCount(); ++i)
    if (auto* const item = dynamic_cast<MapItem*>(d->tree->topLevelItem(i))) item->setFocused(item->map == map);
}

void TOCControl::Refresh() {
  QSignalBlocker const quiet(d->tree);
  for (int i = 0; i < d->tree->topLevelItemCount(); ++i) {
    auto* const map = dynamic_cast<MapItem*>(d->tree->topLevelItem(i));
    if (map) map->setText(0, map->map->GetName());
    for (int j = 0; map && j < map->childCount(); ++j)
      if (auto* const layer = dynamic_cast<LayerItem*>(map->child(j))) layer->show(devicePixelRatioF());
  }
}

}  // namespace SysAdapterUI
