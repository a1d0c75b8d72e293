#include "HostCommands.h"

#include "DocumentSession.h"

#include "drawing/Grouping.h"
#include "drawing/InsertTool.h"
#include "drawing/PageClipboard.h"
#include "drawing/SelectTool.h"
#include "drawing/SelectionHandles.h"
#include "drawing/TextEditing.h"
#include "layers/IdentifyTool.h"
#include "layers/LabelHandles.h"
#include "layers/MapSystem.h"

#include "host/SysCarto/maps/MapHost.h"

#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

#include <memory>
#include <vector>

using SysUtility::_ptr_t;

namespace {

class HostCommand final : public SysFramework::BaseCommand {
public:
  explicit HostCommand(HostCommands::Action action) : action_(std::move(action)) {}
  bool IsEnable() override { return !action_.isEnabled || action_.isEnabled(); }
  bool IsChecked() override { return action_.isChecked && action_.isChecked(); }
  void OnClick() override { action_.click(); }
  QString problem() const { return action_.problem ? action_.problem() : QString(); }

private:
  HostCommands::Action const action_;
};

// The layout with its container, where the layout view is shown.
_ptr_t<SysCarto::PageLayout> shownLayout(DocumentViews const& views) {
  return SysUtility::ptr_cast<SysCarto::PageLayout>(views.activeView());
}

void selectAll(SysCarto::PageLayout& layout) {
  for (auto const& element : workplace(layout).GetElements())
    if (isInReach(*element)) workplace(layout).SelectElement(element);
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

void unselect(SysCarto::PageLayout& layout) {
  workplace(layout).UnselectAllElements();
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

void deleteSelection(SysCarto::PageLayout& layout) {
  {
    SysFramework::EditorOperation const operation(
        QCoreApplication::translate("HostCommands", "Delete the selected elements"));
    for (auto const& element : movableSelection(layout)) workplace(layout).DeleteElement(element);
  }
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

bool hasElements(SysCarto::PageLayout const& layout) { return !workplace(layout).GetElements().isEmpty(); }
bool hasSelection(SysCarto::PageLayout const& layout) { return workplace(layout).GetSelectedElementCount() > 0; }
bool hasMovable(SysCarto::PageLayout const& layout) { return !movableSelection(layout).isEmpty(); }

_ptr_t<SysCarto::Element> selectedAlone(DocumentViews const& views) {
  auto const layout = shownLayout(views);
  auto const selected = layout ? movableSelection(*layout) : QList<_ptr_t<SysCarto::Element>>();
  return selected.size() == 1 ? selected.first() : nullptr;
}

void toggleUnplaced(SysCarto::Map& map, SysCarto::ActiveView& view) {
  SysCarto::MapHost::setShowsUnplaced(map, !SysCarto::MapHost::showsUnplaced(map));
  view.PartialRefresh(SysCarto::RefreshPhase::Everything, nullptr);
}

bool canEdit(DocumentViews const& views) {
  auto const element = selectedAlone(views);
  return element && (element->GetType() == SysCarto::ElementType::Text || hasParts(*element));
}

// The vertices are the business of the tool that selects.
void editSelected(DocumentViews& views) {
  auto const element = selectedAlone(views);
  if (element->GetType() == SysCarto::ElementType::Text) return editText(views, element->GetHandle());
  emit views.layoutView().selectingWanted();
  views.layoutView().editSelected();
}

struct LayoutAction {
  char const* identifier;
  void (*click)(SysCarto::PageLayout&);
  bool (*isEnabled)(SysCarto::PageLayout const&);
};
// clang-format off
constexpr LayoutAction layoutActions[] = {
    {"Host_SelectAll", selectAll,       hasElements},
    {"Host_Unselect",  unselect,        hasSelection},
    {"Host_Delete",    deleteSelection, hasMovable},
};
// clang-format on

// What may turn out to be impossible, which the function then says.
struct TellingAction {
  char const* identifier;
  std::function<QString(SysCarto::PageLayout&)> click;
  bool (*isEnabled)(SysCarto::PageLayout const&);
};

bool always(SysCarto::PageLayout const&) { return true; }

std::vector<TellingAction> tellingActions(SysCarto::MapDocument const& document) {
  auto const clipboard = std::make_shared<PageClipboard>(document);
  auto const with = [clipboard](QString (PageClipboard::*function)(SysCarto::PageLayout&)) {
    return [clipboard, function](SysCarto::PageLayout& layout) { return ((*clipboard).*function)(layout); };
  };
  // clang-format off
  return {
      {"Host_Cut",          with(&PageClipboard::cut),          hasMovable},
      {"Host_Copy",         with(&PageClipboard::copy),         hasSelection},
      {"Host_Paste",        with(&PageClipboard::paste),        always},
      {"Host_PasteInPlace", with(&PageClipboard::pasteInPlace), always},
      {"Host_Duplicate",    with(&PageClipboard::duplicate),    hasSelection},
      {"Host_Group",        groupSelection,                     canGroup},
      {"Host_Ungroup",      ungroupSelection,                   canUngroup},
  };
  // clang-format on
}

}  // namespace

HostCommands::HostCommands(DocumentSession& session, DocumentViews& views) : session_(session), views_(views) {
  auto const stack = [&session] { return session.document().GetOperationStack(); };
  add(QStringLiteral("Host_Undo"), {[stack] { stack()->Undo(); }, [stack] { return stack()->CanUndo(); }, {}});
  add(QStringLiteral("Host_Redo"), {[stack] { stack()->Redo(); }, [stack] { return stack()->CanRedo(); }, {}});
  add(QStringLiteral("Host_KeepEarlier"), {[&session] { session.setKeepsEarlier(!session.keepsEarlier()); },
                                           {},
                                           [&session] { return session.keepsEarlier(); }});
  for (LayoutAction const& row : layoutActions)
    add(QLatin1String(row.identifier), {[&views, &row] { row.click(*shownLayout(views)); },
                                        [&views, &row] {
                                          auto const layout = shownLayout(views);
                                          return layout && row.isEnabled(*layout);
                                        },
                                        {}});
  for (TellingAction const& row : tellingActions(session.document())) {
    auto const problem = std::make_shared<QString>();
    add(QLatin1String(row.identifier), {[&views, row, problem] { *problem = row.click(*shownLayout(views)); },
                                        [&views, row] {
                                          auto const layout = shownLayout(views);
                                          return layout && row.isEnabled(*layout);
                                        },
                                        {},
                                        [problem] { return *problem; }});
  }
  auto const focusMap = [&views] {
    auto const layout = views.GetPageLayout();
    return layout ? layout->GetFocusMap() : nullptr;
  };
  auto const problem = std::make_shared<QString>();
  add(QStringLiteral("Host_CoordinateSystem"), {[&session, &views, focusMap, problem] {
                                                  *problem =
                                                      chooseMapSystem(session.document(), focusMap(), views.window());
                                                },
                                                [focusMap] { return static_cast<bool>(focusMap()); },
                                                {},
                                                [problem] { return *problem; }});
  add(QStringLiteral("Host_UnplacedLabels"),
      {[&views, focusMap] { toggleUnplaced(*focusMap(), *views.activeView()); },
       [focusMap] { return static_cast<bool>(focusMap()); },
       [focusMap] { return focusMap() && SysCarto::MapHost::showsUnplaced(*focusMap()); }});
  add(QStringLiteral("Host_Edit"), {[&views] { editSelected(views); }, [&views] { return canEdit(views); }, {}});
  auto& view = views.layoutView();
  add(QStringLiteral("Host_Guides"),
      {[&view] { view.setShowsAids(!view.showsAids()); }, {}, [&view] { return view.showsAids(); }});
  add(QStringLiteral("Host_Snapping"),
      {[&view] { view.setSnaps(!view.snaps()); }, {}, [&view] { return view.snaps(); }});
  for (auto const& [identifier, kind] : {std::make_pair("Host_LayoutView", DocumentViews::Kind::Layout),
                                         std::make_pair("Host_MapView", DocumentViews::Kind::Map)})
    add(QLatin1String(identifier),
        {[&views, kind = kind] { views.show(kind); }, [&views] { return static_cast<bool>(views.GetPageLayout()); },
         [&views, kind = kind] { return views.kind() == kind; }});
}

_ptr_t<SysUI::ICommand> HostCommands::createCommand(QString const& identifier) const {
  if (identifier == QLatin1String("Host_Select")) return SysUtility::make<SelectTool>(views_);
  if (identifier == QLatin1String("Host_Identify")) return SysUtility::make<IdentifyTool>(session_, views_);
  for (NewElementKind const& kind : NewElementKind::all())
    if (kind.identifier && identifier == QLatin1String(kind.identifier))
      return SysUtility::make<InsertTool>(kind, views_.layoutView());
  auto const action = actions_.constFind(identifier);
  if (action == actions_.constEnd()) return nullptr;
  return SysUtility::make<HostCommand>(*action);
}

QString HostCommands::problemOf(SysUI::ICommand const& command) {
  auto const* const own = dynamic_cast<HostCommand const*>(&command);
  return own ? own->problem() : QString();
}
