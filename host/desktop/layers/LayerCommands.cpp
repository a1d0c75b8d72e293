#include "LayerCommands.h"

#include "sheet/LayerSheet.h"
#include "sheet/OpacitySlider.h"

#include "host/desktop/ActionTable.h"
#include "host/desktop/HostCommands.h"
#include "host/desktop/OwnKeys.h"
#include "host/desktop/Workbench.h"

#include "host/SysAdapterUI/ContentsTree.h"
#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/maps/LayerData.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>

#include <algorithm>
#include <memory>

using SysCarto::LayerRow;

namespace {

using Rows = LayerActions::Rows;

bool isMap(LayerRow const& row) { return !row.layer && !row.group; }
bool isLayer(LayerRow const& row) { return static_cast<bool>(row.layer); }

bool areAny(Rows const& rows) { return !rows.isEmpty(); }
bool areLayers(Rows const& rows) { return std::any_of(rows.begin(), rows.end(), std::not_fn(isMap)); }
bool isOne(Rows const& rows) { return rows.size() == 1; }
bool isOneMap(Rows const& rows) { return isOne(rows) && isMap(rows.first()); }
bool isOneLayer(Rows const& rows) { return isOne(rows) && isLayer(rows.first()); }
bool isOneWithScales(Rows const& rows) {
  if (!isOneLayer(rows)) return false;
  auto const scales = SysCarto::LayerHost::scales(*rows.first().layer);
  return scales.min > 0 || scales.max > 0;
}
bool isOneBroken(Rows const& rows) { return isOne(rows) && !LayerActions::problemOf(rows.first()).isEmpty(); }
bool isInGroup(Rows const& rows) {
  return areLayers(rows) && std::any_of(rows.begin(), rows.end(), [](LayerRow const& row) {
           return row.layer ? !SysCarto::LayerHost::groups(*row.layer).isEmpty() : static_cast<bool>(row.group);
         });
}
Rows layersAmong(Rows rows);
bool canEnterGroup(Rows const& rows) { return LayerActions::canEnterGroup(layersAmong(rows)); }
bool isAnyOn(Rows const& rows) {
  return std::any_of(rows.begin(), rows.end(), [](LayerRow const& row) {
    return row.layer ? SysCarto::LayerHost::isSwitchedOn(*row.layer) : row.group && row.group->isVisible();
  });
}

// The rows without the maps.
Rows layersAmong(Rows rows) {
  rows.erase(std::remove_if(rows.begin(), rows.end(), isMap), rows.end());
  return rows;
}

}  // namespace

// What a command does with the rows that are chosen.
struct LayerCommand {
  char const* identifier;
  LayerOutcome (*click)(LayerCommands&, Rows const&);
  bool (*isEnabled)(Rows const&);
  bool (*isChecked)(Rows const&) = nullptr;

  template <LayerOutcome (*action)(Rows const&)>
  static LayerOutcome onLayers(LayerCommands&, Rows const& rows) {
    return action(layersAmong(rows));
  }
  template <int percent>
  static LayerOutcome opacity(LayerCommands& self, Rows const& rows) {
    return LayerActions::setOpacity(self.bench_.session().document(), layersAmong(rows), percent);
  }
  static LayerOutcome group(LayerCommands&, Rows const& rows) { return LayerActions::group(layersAmong(rows)); }
  static LayerOutcome paste(LayerCommands& self, Rows const&) { return LayerActions::paste(self.placeForNew()); }
  static LayerOutcome rename(LayerCommands& self, Rows const&) {
    self.tree_->rename();
    return {};
  }
  static LayerOutcome repair(LayerCommands& self, Rows const& rows) { return self.askForRepair(rows); }
  static LayerOutcome showSheet(LayerCommands& self, Rows const& rows) { return self.showSheet(rows); }
  static LayerOutcome focus(LayerCommands& self, Rows const& rows) { return self.focus(rows); }
  static LayerOutcome zoom(LayerCommands& self, Rows const& rows) {
    return LayerActions::zoomTo(*self.bench_.session().document().GetPageLayout(), rows);
  }
  static LayerOutcome zoomToScales(LayerCommands& self, Rows const& rows) {
    return LayerActions::zoomToScales(*self.bench_.session().document().GetPageLayout(), rows.first());
  }

  static LayerCommand const all[];
};

// clang-format off
LayerCommand const LayerCommand::all[] = {
    {"Host_RenameLayer",      rename,                                  isOne},
    {"Host_RemoveLayer",      onLayers<LayerActions::remove>,          areLayers},
    {"Host_DuplicateLayer",   onLayers<LayerActions::duplicate>,       areLayers},
    {"Host_CutLayer",         onLayers<LayerActions::cut>,             areLayers},
    {"Host_CopyLayer",        onLayers<LayerActions::copyToClipboard>, areLayers},
    {"Host_PasteLayer",       paste,                                   areAny},
    {"Host_GroupLayers",      group,                                   LayerActions::canGroup},
    {"Host_UngroupLayers",    onLayers<LayerActions::ungroup>,         LayerActions::canUngroup},
    {"Host_RaiseLayer",       onLayers<LayerActions::raise>,           areLayers},
    {"Host_LowerLayer",       onLayers<LayerActions::lower>,           areLayers},
    {"Host_EnterGroup",       onLayers<LayerActions::enterGroup>,      canEnterGroup},
    {"Host_LeaveGroup",       onLayers<LayerActions::leaveGroup>,      isInGroup},
    {"Host_ShowLayer",        onLayers<LayerActions::toggleVisible>,   areLayers, isAnyOn},
    {"Host_Opacity100",       opacity<100>,                            areLayers},
    {"Host_Opacity75",        opacity<75>,                             areLayers},
    {"Host_Opacity50",        opacity<50>,                             areLayers},
    {"Host_Opacity25",        opacity<25>,                             areLayers},
    {"Host_ZoomToLayer",      zoom,                                    areAny},
    {"Host_ZoomToScaleRange", zoomToScales,                            isOneWithScales},
    {"Host_RepairLayer",      repair,                                  isOneBroken},
    {"Host_LayerProperties",  showSheet,                               isOneLayer},
    {"Host_FocusMap",         focus,                                   isOneMap},
};
// clang-format on

LayerCommands::LayerCommands(Workbench& bench) : bench_(bench) {}
LayerCommands::~LayerCommands() = default;

LayerCommands::Rows LayerCommands::chosen() const { return tree_ ? tree_->chosen() : Rows(); }

void LayerCommands::addTo(HostCommands& host) {
  for (LayerCommand const& command : LayerCommand::all) {
    auto const problem = std::make_shared<QString>();
    HostCommands::Action action;
    action.click = [this, &command, problem] { *problem = take(command.click(*this, chosen())); };
    action.isEnabled = [this, &command] { return command.isEnabled(chosen()); };
    if (command.isChecked) action.isChecked = [this, &command] { return command.isChecked(chosen()); };
    action.problem = [problem] { return *problem; };
    host.add(QLatin1String(command.identifier), action);
  }
}

void LayerCommands::setTree(SysAdapterUI::ContentsTree& tree, ActionTable& actions) {
  tree_ = &tree;
  actions_ = &actions;
  addOpacityTo(actions);
  // A layer is opened, and what else has rows below it unfolds.
  tree.setExpandsOnDoubleClick(false);
  connect(&tree, &QTreeView::doubleClicked, this, [&tree, &actions, this](QModelIndex const& index) {
    actions.refresh();
    QAction* const sheet = actions.find(QStringLiteral("Host_LayerProperties"));
    if (!isOneLayer(chosen())) return tree.setExpanded(index, !tree.isExpanded(index));
    sheet->trigger();
    if (tree.rows().isClass(index)) sheet_->showLayer(sheet_->layer(), QStringLiteral("Symbols"));
  });
  tree.addActions(actions.ofContents());
  new OwnKeys(tree);
  connect(&tree, &SysAdapterUI::ContentsTree::rowsChosen, &actions, &ActionTable::refreshSoon);
  connect(&tree, &SysAdapterUI::ContentsTree::menuWanted, &actions, [&actions](QPoint const& at) {
    actions.refresh();
    actions.menu(QStringLiteral("Layer"))->exec(at);
  });
  auto const takeAndTell = [this](LayerOutcome const& outcome) {
    QString const problem = take(outcome);
    if (!problem.isEmpty()) emit told(problem);
  };
  connect(&tree, &SysAdapterUI::ContentsTree::renameWanted, this,
          [this, takeAndTell](LayerRow const& row, QString const& name) {
            takeAndTell(LayerActions::rename(bench_.session().document(), row, name));
          });
  connect(&tree, &SysAdapterUI::ContentsTree::rowsDropped, this,
          [takeAndTell](Rows const& rows, SysCarto::LayerPlace const& place, bool copies) {
            takeAndTell(copies ? LayerActions::copy(rows, place) : LayerActions::move(rows, place));
          });
}

SysCarto::LayerPlace LayerCommands::placeForNew() const {
  Rows const rows = chosen();
  if (!rows.isEmpty()) return LayerActions::above(rows.first());
  auto const layout = bench_.session().document().GetPageLayout();
  auto const map = layout ? layout->GetFocusMap() : nullptr;
  return map ? LayerActions::above({map}) : SysCarto::LayerPlace();
}

QString LayerCommands::take(LayerOutcome const& outcome) {
  if (!outcome.warnings.isEmpty()) emit told(outcome.warnings.join(QLatin1Char('\n')));
  if (tree_ && outcome.problem.isEmpty() && !outcome.rows.isEmpty()) tree_->choose(outcome.rows);
  return outcome.problem;
}

LayerOutcome LayerCommands::focus(Rows const& rows) {
  bench_.views().focusOn(rows.first().map);
  return {};
}

bool LayerCommands::isEditing() const { return sheet_ && sheet_->isEditing(); }

void LayerCommands::finishTyping() {
  if (sheet_) sheet_->finishTyping();
}

LayerOutcome LayerCommands::showSheet(Rows const& rows) {
  if (!sheet_) {
    sheet_ = new LayerSheet(bench_.session(), tree_->window());
    connect(sheet_, &LayerSheet::editing, actions_, &ActionTable::refreshSoon);
    // The keys of the window do not reach another one.
    for (char const* const identifier : {"Host_Undo", "Host_Redo", "Host_Save"})
      sheet_->addAction(actions_->find(QLatin1String(identifier)));
  }
  sheet_->showLayer(rows.first());
  return {};
}

// That of the first layer; whatever is chosen becomes as it is set.
void LayerCommands::addOpacityTo(ActionTable& actions) {
  QMenu* const menu = actions.menu(QStringLiteral("Layer/Opacity"));
  OpacitySlider* const slider = OpacitySlider::addTo(*menu);
  connect(menu, &QMenu::aboutToShow, slider, [this, slider] {
    Rows const rows = layersAmong(chosen());
    auto const first = std::find_if(rows.begin(), rows.end(), isLayer);
    slider->setEnabled(!rows.isEmpty());
    slider->setPercent(first == rows.end() ? 100 : SysCarto::LayerHost::effects(*first->layer).opacityPercent);
  });
  connect(slider, &OpacitySlider::chosen, this, [this](double percent) {
    QString const problem = take(LayerActions::setOpacity(bench_.session().document(), layersAmong(chosen()), percent));
    if (!problem.isEmpty()) emit told(problem);
  });
}

LayerOutcome LayerCommands::askForRepair(Rows const& rows) {
  auto const layer = rows.first().layer;
  QStringList const files = layer ? SysCarto::filesOf(*layer) : QStringList();
  if (files.isEmpty()) return {};
  QDir folder = QFileInfo(files.first()).absoluteDir();
  if (!folder.exists()) folder = QFileInfo(bench_.session().path()).absoluteDir();
  QString const file = QFileDialog::getOpenFileName(tree_, tr("Where is the file of “%1”?").arg(layer->GetName()),
                                                    folder.absolutePath());
  return file.isEmpty() ? LayerOutcome() : LayerActions::repair(bench_.session().document(), rows.first(), file);
}
