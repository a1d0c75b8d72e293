#include <SysAdapterUI/TOCControl.h>

#include "ContentsTree.h"

#include <SysCarto/Map.h>
#include <SysCarto/PageLayout.h>

#include <QVBoxLayout>

using SysCarto::LayerRow;
using SysCarto::Map;
using SysUtility::_ptr_t;

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
  QVariant data(int column, int role) const override;
  _ptr_t<Layer> const layer;

private:
  quint64 look_ = 0;  // of the layer when it was shown last
};

// Labels are placed again and again, so their tool tip is made when it is asked for.
QVariant LayerItem::data(int column, int role) const {
  QVariant const kept = QTreeWidgetItem::data(column, role);
  auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(layer);
  if (role != Qt::ToolTipRole || !vector || !kept.toString().isEmpty() || !vector->IsAnnotationVisible()) return kept;
  SysCarto::LabelCount const count = vector->labelCount();
  if (count.placed == count.wanted) return kept;
  return TOCControl::tr("%1 of %2 labels found no place").arg(count.wanted - count.placed).arg(count.wanted);
}

// The map or the layer that a row stands for; null for the rows within a layer.
void const* thingOf(QTreeWidgetItem const& item) {
  if (auto const* const row = dynamic_cast<LayerItem const*>(&item)) return row->layer.get();
  auto const* const row = dynamic_cast<MapItem const*>(&item);
  return row ? row->map.get() : nullptr;
}

}  // namespace

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
