#include "PlotvanePlugin.h"

#include "arrange/AlignToMarginsElement.h"
#include "arrange/Alignment.h"
#include "arrange/DataFrameLock.h"
#include "arrange/Distribution.h"
#include "arrange/FitToMargins.h"
#include "arrange/SameSize.h"
#include "arrange/StackingOrder.h"
#include "export/ExportCommand.h"
#include "insert/AddGridCommand.h"
#include "insert/AddMapFrameElementTool.h"
#include "insert/AddNorthArrowCommand.h"
#include "insert/ChangePageLayout.h"
#include "insert/ConvertToGraphics.h"
#include "insert/SurroundInsertion.h"
#include "navigation/PageExtentCommands.h"
#include "navigation/PagePanTool.h"
#include "navigation/PageZoomTools.h"
#include "pagesetup/PageSettingCommand.h"

using SysUI::ICommand;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace Plugin {

namespace {

template <class Command>
_ptr_t<ICommand> create() {
  return make<Command>();
}

struct Row {
  char const* id;
  _ptr_t<ICommand> (*create)();
};

// clang-format off
constexpr Row rows[] = {
    {"Plotvane_ZoomIn",                         create<PageZoomInTool>},
    {"Plotvane_ZoomOut",                        create<PageZoomOutTool>},
    {"Plotvane_Pan",                            create<PagePanTool>},
    {"Plotvane_MapFrame",                       create<AddMapFrameElementTool>},
    {"Plotvane_ScaleBar",                       create<AddScaleBarCommand>},
    {"Plotvane_Legend",                         create<AddLegendCommand>},
    {"Plotvane_ZoomToOrigin",                   create<PageZoomToOrigin>},
    {"Plotvane_ZoomToWhole",                    create<PageFullExtent>},
    {"Plotvane_PageSetting",                    create<PageSettingCommand>},
    {"Plotvane_Export",                         create<ExportCommand>},
    {"Plotvane_ChangePageLayout",               create<ChangePageLayout>},
    {"Plotvane_NorthArrow",                     create<AddNorthArrowCommand>},
    {"Plotvane_LeftAlignment",                  create<LeftAlignmentElement>},
    {"Plotvane_RightAlignment",                 create<RightAlignmentElement>},
    {"Plotvane_TopAlignment",                   create<TopAlignmentElement>},
    {"Plotvane_BottomAlignment",                create<BottomAlignmentElement>},
    {"Plotvane_CenterAlignment",                create<CenterAlignmentElement>},
    {"Plotvane_VerticalCenterAlignment",        create<VerticalCenterAlignmentElement>},
    {"Plotvane_AlignToMargins",                 create<AlignToMarginsElement>},
    {"Plotvane_BringToFrontElements",           create<BringToFrontElements>},
    {"Plotvane_BringForwardElements",           create<BringForwardElements>},
    {"Plotvane_SendToBackElements",             create<SendToBackElements>},
    {"Plotvane_SendBackwardElements",           create<SendBackwardElements>},
    {"Plotvane_ConvertToGraphics",              create<ConvertToGraphics>},
    {"Plotvane_DistributeHorizontallyElements", create<DistributeHorizontallyElements>},
    {"Plotvane_DistributeVerticallyElements",   create<DistributeVerticallyElements>},
    {"Plotvane_MakeSameSizeElements",           create<MakeSameSizeElements>},
    {"Plotvane_MakeSameWidthElements",          create<MakeSameWidthElements>},
    {"Plotvane_MakeSameHeightElements",         create<MakeSameHeightElements>},
    {"Plotvane_FittoMarginsElements",           create<FittoMarginsElements>},
    {"Plotvane_FitWidthtoMarginsElements",      create<FitWidthtoMarginsElements>},
    {"Plotvane_FitHeighttoMarginsElements",     create<FitHeighttoMarginsElements>},
    {"Plotvane_LockDataFrame",                  create<LockDataFrame>},
    {"Plotvane_UnlockDataFrame",                create<UnlockDataFrame>},
    {"Plotvane_ScaleText",                      create<AddScaleTextCommand>},
    {"Plotvane_Grid",                           create<AddGridCommand>},
    {"Plotvane_ZoomToPreviousExtent",           create<ZoomToPreviousExtentCommand>},
    {"Plotvane_ZoomToNextExtent",               create<ZoomToNextExtentCommand>},
};
// clang-format on

}  // namespace

PlotvanePlugin::PlotvanePlugin() = default;
PlotvanePlugin::~PlotvanePlugin() = default;

_ptr_t<ICommand> PlotvanePlugin::CreateCommand(QString const& id, QString const&) {
  for (Row const& row : rows)
    if (id.compare(QLatin1String(row.id), Qt::CaseInsensitive) == 0) return row.create();
  return nullptr;
}

}  // namespace Plugin

SysUI::CMDPluginModule* GetPluginModule() { return new Plugin::PlotvanePlugin; }
