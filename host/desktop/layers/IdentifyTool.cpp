#include "IdentifyTool.h"

#include "ReadingProgress.h"

#include "host/desktop/DocumentSession.h"
#include "host/desktop/DocumentViews.h"

#include <QMouseEvent>

namespace {

constexpr double reachPx = 4;

std::optional<MapPlace> placeIn(ViewWidget const& view, QPointF const& positionPx) {
  auto const maps = view.shownMaps();
  for (auto shown = maps.rbegin(); shown != maps.rend(); ++shown) {  // the topmost first
    if (!shown->placePx.contains(positionPx)) continue;
    QTransform const toMap = mapToView(*shown->map, shown->placePx).inverted();
    return MapPlace{shown->map, toMap.map(positionPx), std::hypot(toMap.m11(), toMap.m12())};
  }
  return std::nullopt;
}

Identified identified(MapPlace const& at, OpenTables& tables, SysCarto::ReadProgress const& progress) {
  return identify(at.map, at.place, reachPx * at.unitsPerPx, tables, progress);
}

}  // namespace

std::optional<Identified> identifyAt(DocumentViews& views, QPointF const& place) {
  OpenTables tables;
  auto const layout = views.GetPageLayout();
  if (views.kind() == DocumentViews::Kind::Layout) {
    auto const at =
        layout ? placeIn(views.layoutView(), layout->GetDisplayTransformation()->ToDevice().map(place)) : std::nullopt;
    return at ? std::make_optional(identified(*at, tables, {})) : std::nullopt;
  }
  auto const maps = views.mapView().shownMaps();
  if (maps.isEmpty()) return std::nullopt;
  QTransform const toMap = mapToView(*maps.first().map, maps.first().placePx).inverted();
  return identified({maps.first().map, place, std::hypot(toMap.m11(), toMap.m12())}, tables, {});
}

IdentifyTool::IdentifyTool(DocumentSession const& session, DocumentViews& views) : session_(session), views_(views) {
  enabled_ = true;
}

IdentifyTool::~IdentifyTool() {
  QObject::disconnect(clicks_);
  QObject::disconnect(ends_);
}

bool IdentifyTool::IsEnable() {
  auto const layout = views_.GetPageLayout();
  return layout && layout->GetFocusMap();
}

bool IdentifyTool::Activate() {
  clicks_ = QObject::connect(&views_.mapView(), &MapView::clicked, &views_,
                             [this](QPointF const& positionPx) { look(placeIn(views_.mapView(), positionPx)); });
  ends_ = QObject::connect(&session_, &DocumentSession::replaced, &views_, [this] { tables_.close(); });
  views_.mapView().setCursor(Qt::WhatsThisCursor);
  return BaseTool::Activate();
}

bool IdentifyTool::Deactivate() {
  QObject::disconnect(clicks_);
  QObject::disconnect(ends_);
  tables_.close();
  views_.mapView().unsetCursor();
  return BaseTool::Deactivate();
}

void IdentifyTool::OnEnterEvent(QEvent*) { SetCurrentCursor(QCursor(Qt::WhatsThisCursor)); }

void IdentifyTool::OnMouseDown(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) look(placeIn(views_.layoutView(), event->localPos()));
}

void IdentifyTool::look(std::optional<MapPlace> const& at) {
  if (!at) return;
  ReadingProgress progress(*views_.mapView().window());
  views_.tell(identified(*at, tables_, progress.watch()));
}
