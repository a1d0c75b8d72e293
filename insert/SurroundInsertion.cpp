#include "SurroundInsertion.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

#include <optional>

using SysCarto::Element;
using SysCarto::Map;
using SysCarto::MapSurround;
using SysCarto::PageLayout;
using SysFramework::EditorOperation;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace Plugin {

struct SurroundInsertionCommand::Row {
  char const* context;
  char const* operation;
  _ptr_t<MapSurround> (*create)();
  _ptr_t<Envelope> (PageLayout::*defaultRectangle)() const;
  _ptr_t<Map> (*map)(PageLayout const&);
  bool opensOperationFirst;
};

namespace {

template <class Surround>
_ptr_t<MapSurround> create() {
  return SysUtility::make<Surround>();
}

_ptr_t<Map> mapOfFocusFrame(PageLayout const& layout) {
  auto const frame = layout.GetFocusMapFrameElement();
  return frame ? frame->GetMap() : nullptr;
}

_ptr_t<Map> focusMap(PageLayout const& layout) { return layout.GetFocusMap(); }

// clang-format off
constexpr SurroundInsertionCommand::Row legend = {"AddLegendCommand",
    QT_TRANSLATE_NOOP("AddLegendCommand", "Add a legend"),
    create<SysCarto::Legend>, &PageLayout::GetDefaultLegendEnvelope, mapOfFocusFrame, true};
constexpr SurroundInsertionCommand::Row scaleBar = {"AddScaleBarCommand",
    QT_TRANSLATE_NOOP("AddScaleBarCommand", "Add a scale bar"),
    create<SysCarto::ScaleLine>, &PageLayout::GetDefaultScaleBarEnvelope, focusMap, false};
constexpr SurroundInsertionCommand::Row scaleText = {"AddScaleTextCommand",
    QT_TRANSLATE_NOOP("AddScaleTextCommand", "Add a text of description of the scale"),
    create<SysCarto::ScaleText>, &PageLayout::GetDefaultScaleTextEnvelope, focusMap, false};
// clang-format on

}  // namespace

SurroundInsertionCommand::SurroundInsertionCommand(Row const& row) : row_(&row) {}

void SurroundInsertionCommand::OnClick() {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout || !layout->GetPage()) return;
  auto const rectangle = (layout.get()->*row_->defaultRectangle)();
  QString const name = QCoreApplication::translate(row_->context, row_->operation);
  std::optional<EditorOperation> operation;
  if (row_->opensOperationFirst) operation.emplace(name);
  auto const map = row_->map(*layout);
  auto const frame = surroundFrame(row_->create(), map, rectangle);
  if (!operation) operation.emplace(name);
  layout->GetGraphicsContainer()->AddElement(frame);
  operation.reset();
  selectAlone(*layout, frame);
}

AddLegendCommand::AddLegendCommand() : SurroundInsertionCommand(legend) {}
AddScaleBarCommand::AddScaleBarCommand() : SurroundInsertionCommand(scaleBar) {}
AddScaleTextCommand::AddScaleTextCommand() : SurroundInsertionCommand(scaleText) {}

_ptr_t<Element> surroundFrame(_ptr_t<MapSurround> const& surround, _ptr_t<Map> const& map,
                              _ptr_t<Envelope> const& rectangle) {
  auto const frame = SysUtility::make<SysCarto::MapSurroundFrame>();
  surround->SetMap(map);
  frame->SetMapSurround(surround);
  frame->SetGeometry(rectangle);
  return frame;
}

void selectAlone(PageLayout& layout, _ptr_t<Element> const& element) {
  IElementContainer* const container = layout.GetGraphicsContainer();
  container->UnselectAllElements();
  container->SelectElement(element);
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

}  // namespace Plugin
