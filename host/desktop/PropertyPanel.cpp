#include "PropertyPanel.h"

#include "MapGround.h"
#include "layers/LayerActions.h"
#include "layers/MapSystem.h"
#include "layers/sheet/ConditionDialog.h"

#include "host/SysAdapterUI/SymbolChooser.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysUtility/ChangeMark.h"

#include <SysCarto/PageLayout.h>

#include <QUndoStack>

#include <algorithm>

using SysCarto::Editable;
using SysCarto::LayerRow;
using SysCarto::MapDocumentHost;
using SysUtility::SheetField;

PropertyPanel::PropertyPanel(DocumentSession& session, QWidget* parent)
    : QDockWidget(tr("Properties"), parent),
      session_(session),
      changes_(session),
      sheet_(new SysAdapterUI::PropertySheet(this)) {
  setObjectName(QStringLiteral("dockWidget_Properties"));
  setWidget(sheet_);
  connect(sheet_, &SysAdapterUI::PropertySheet::editing, this, &PropertyPanel::editing);
  connect(sheet_, &SysAdapterUI::PropertySheet::symbolWanted, this, &PropertyPanel::chooseSymbol);
  connect(&session, &DocumentSession::replaced, this, [this] {
    rows_.clear();
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
  if (!rows_.isEmpty()) {
    for (LayerRow const& row : rows_)
      if (auto const thing = LayerActions::editable(row)) things << thing;
  } else if (!selected_.isEmpty()) {
    for (SysCarto::ElementHandle const handle : selected_) things << Editable::element(document, handle);
  } else if (auto const page = Editable::page(document)) {
    things << page;
  }
  return things;
}

QString PropertyPanel::titleOf(Editable::List const& things) const {
  if (things.isEmpty()) return tr("Nothing to set");
  if (things.size() > 1 && !rows_.isEmpty()) return tr("%1 rows of the contents").arg(things.size());
  if (things.size() > 1) return tr("%1 elements").arg(things.size());
  LayerRow const row = rows_.value(0);
  if (row.layer) return tr("Layer %1").arg(things.first()->name());
  if (row.group) return tr("Group %1").arg(things.first()->name());
  if (row.map) return tr("Map %1").arg(things.first()->name());
  return selected_.isEmpty() ? tr("Page") : things.first()->name();
}

void PropertyPanel::follow() {
  auto const selected = selection();
  bool const isOther = selected != selected_;
  selected_ = selected;
  if (isOther) rows_.clear();
  auto const hasGone = [this](LayerRow const& row) { return !LayerActions::isThere(session_.document(), row); };
  rows_.erase(std::remove_if(rows_.begin(), rows_.end(), hasGone), rows_.end());
  if (!isVisible()) return;
  things_ = chosen();
  sheet_->setTitle(titleOf(things_));
  Shown const shown{rows_, selected_};
  Moment const now{MapDocumentHost::history(session_.document())->index(), SysUtility::ChangeMark::now()};
  bool const isKnown = shown_ && *shown_ == shown, isLater = !(now == moment_);
  moment_ = now;
  // A map is zoomed within one step. To look at many elements takes a while, and the wheel comes here, too.
  if (isKnown) {
    if (isLater || (rows_.size() == 1 && !rows_.first().layer)) sheet_->refresh();
    return;
  }
  shown_ = shown;
  changes_.forget();
  sheet_->show(this);
}

void PropertyPanel::showSelection() { showRows({}); }

void PropertyPanel::showRows(QVector<LayerRow> const& rows) {
  rows_ = rows;
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
  QStringList warnings;
  QString const problem = changes_.set(things_, path, value, joining, warnings);
  if (!warnings.isEmpty()) emit told(warnings.join(QLatin1Char('\n')));
  return problem;
}

bool PropertyPanel::canChoose(SysUtility::TextKind kind) const {
  return kind == SysUtility::TextKind::CoordinateSystem || (kind == SysUtility::TextKind::Condition && layer());
}

std::optional<QString> PropertyPanel::choose(QStringList const& path, QString const& now, QWidget* parent) {
  auto const layout = session_.document().GetPageLayout();
  LayerRow const row = rows_.value(0);
  if (row.layer) return chooseTextOf(session_.document(), row, path, now, parent);
  auto const map = row.map || !layout ? row.map : layout->GetFocusMap();
  return SysAdapterUI::SystemChooser::choose(systemChoice(session_.document(), map.get(), now, false), parent);
}

void PropertyPanel::chooseSymbol(QModelIndex const& index) {
  SysAdapterUI::chooseSymbol(sheet_->model(), index, groundOfFocusMap(session_.document()), this);
}
