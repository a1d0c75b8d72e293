#include "PropertyPanel.h"

#include "layers/MapSystem.h"

#include "host/SysAdapterUI/SymbolChooser.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysUtility/ChangeMark.h"

#include <SysCarto/MapFrameElement.h>
#include <SysCarto/PageLayout.h>
#include <SysCarto/SymbolFrameParts.h>
#include <SysDisplay/SimpleFillSymbol.h>

#include <QUndoStack>

using SysCarto::Editable;
using SysCarto::MapDocumentHost;
using SysUtility::SheetField;

namespace {

constexpr qint64 quickMs = 1000;

}  // namespace

PropertyPanel::PropertyPanel(DocumentSession& session, QWidget* parent)
    : QDockWidget(tr("Properties"), parent), session_(session), sheet_(new SysAdapterUI::PropertySheet(this)) {
  setObjectName(QStringLiteral("dockWidget_Properties"));
  setWidget(sheet_);
  connect(sheet_, &SysAdapterUI::PropertySheet::editing, this, &PropertyPanel::editing);
  connect(sheet_, &SysAdapterUI::PropertySheet::symbolWanted, this, &PropertyPanel::chooseSymbol);
  connect(&session, &DocumentSession::replaced, this, [this] {
    map_ = nullptr;
    layer_ = nullptr;
    things_.clear();
    showAnew();
  });
}

PropertyPanel::~PropertyPanel() { sheet_->show(nullptr); }

QList<SysCarto::ElementHandle> PropertyPanel::selection() const {
  QList<SysCarto::ElementHandle> handles;
  auto const layout = session_.document().GetPageLayout();
  if (!layout) return handles;
  for (auto const& element : SysCarto::PageLayoutHost::workplace(*layout).GetSelectedElements())
    handles << element->GetHandle();
  return handles;
}

Editable::List PropertyPanel::chosen() const {
  Editable::List things;
  auto const& document = session_.document();
  if (layer_) {
    if (auto const layer = Editable::layer(map_, layer_)) things << layer;
  } else if (map_) {
    things << Editable::map(map_);
  } else if (!selected_.isEmpty()) {
    for (SysCarto::ElementHandle const handle : selected_) things << Editable::element(document, handle);
  } else if (auto const page = Editable::page(document)) {
    things << page;
  }
  return things;
}

QString PropertyPanel::titleOf(Editable::List const& things) const {
  if (things.isEmpty()) return tr("Nothing to set");
  if (things.size() > 1) return tr("%1 elements").arg(things.size());
  if (layer_) return tr("Layer %1").arg(things.first()->name());
  if (map_) return tr("Map %1").arg(things.first()->name());
  return selected_.isEmpty() ? tr("Page") : things.first()->name();
}

void PropertyPanel::follow() {
  auto const selected = selection();
  bool const isOther = selected != selected_;
  selected_ = selected;
  if (isOther) {
    map_ = nullptr;
    layer_ = nullptr;
  }
  QList<SysUtility::_ptr_t<SysCarto::Map>> maps;
  session_.document().GetMaps(maps);
  if (!maps.contains(map_) || (layer_ && !map_->GetLayers().contains(layer_))) {  // gone, by undo or a template
    map_ = nullptr;
    layer_ = nullptr;
  }
  if (!isVisible()) return;
  things_ = chosen();
  sheet_->setTitle(titleOf(things_));
  Shown const shown{map_.get(), layer_.get(), selected_};
  Moment const now{MapDocumentHost::history(session_.document())->index(), SysUtility::ChangeMark::now()};
  bool const isKnown = shown_ && *shown_ == shown, isLater = !(now == moment_);
  moment_ = now;
  // A map is zoomed within one step. To look at many elements takes a while, and the wheel comes here, too.
  if (isKnown) {
    if (isLater || (map_ && !layer_)) sheet_->refresh();
    return;
  }
  shown_ = shown;
  last_ = {};
  sheet_->show(this);
}

void PropertyPanel::showSelection() { showRow(nullptr, nullptr); }

void PropertyPanel::showRow(SysUtility::_ptr_t<SysCarto::Map> const& map,
                            SysUtility::_ptr_t<SysCarto::Layer> const& layer) {
  map_ = map;
  layer_ = layer;
  follow();
}

void PropertyPanel::showEvent(QShowEvent* event) {
  QDockWidget::showEvent(event);
  showAnew();
}

void PropertyPanel::showAnew() {
  shown_.reset();
  follow();
}

QVector<SheetField> PropertyPanel::fields() {
  return SysUtility::commonFields(Editable::fields(session_.document(), things_));
}

QString PropertyPanel::set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) {
  QUndoStack* const history = MapDocumentHost::history(session_.document());
  bool const isQuick = !joining.isEmpty() && joining == last_.joining && history->index() == last_.step &&
                       history->canUndo() && last_.clock.isValid() && last_.clock.elapsed() < quickMs;
  if (isQuick) history->undo();
  QStringList warnings;
  int const before = history->index();
  QString const problem = Editable::set(session_.document(), things_, path, value, warnings);
  if (isQuick && !problem.isEmpty()) history->redo();
  if (problem.isEmpty()) {
    last_.joining = history->index() == before ? QString() : joining;
    last_.step = history->index();
    last_.clock.restart();
  }
  if (!warnings.isEmpty()) emit told(warnings.join(QLatin1Char('\n')));
  return problem;
}

std::optional<QString> PropertyPanel::chooseSystem(QStringList const&, QString const& now, QWidget* parent) {
  auto const layout = session_.document().GetPageLayout();
  auto const map = map_ || !layout ? map_ : layout->GetFocusMap();
  bool const isOfLayer = static_cast<bool>(layer_);
  return SysAdapterUI::SystemChooser::choose(systemChoice(session_.document(), map.get(), now, isOfLayer), parent);
}

void PropertyPanel::chooseSymbol(QModelIndex const& index) {
  SysAdapterUI::chooseSymbol(sheet_->model(), index, background(), this);
}

// Of the focus data frame.
QColor PropertyPanel::background() const {
  auto const layout = session_.document().GetPageLayout();
  auto const frame = layout ? layout->GetFocusMapFrameElement() : nullptr;
  auto const ground = frame ? SysUtility::ptr_cast<SysCarto::SymbolBackground>(frame->GetBackground()) : nullptr;
  auto const fill = ground ? SysUtility::ptr_cast<SysDisplay::SimpleFillSymbol>(ground->GetFillSymbol()) : nullptr;
  return fill ? fill->GetColor() : QColor(Qt::white);
}
