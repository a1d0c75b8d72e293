#pragma once

#include "Identify.h"

#include "host/desktop/drawing/HostTool.h"

#include <SysFramework/BaseTool.h>

#include <QObject>

class DocumentSession;
class DocumentViews;

/// Where a view shows a map, at a place of the view.
struct MapPlace {
  SysUtility::_ptr_t<SysCarto::Map> map;
  QPointF place;  ///< in map units
  double unitsPerPx;
};

/// What lies at a place of the page, in centimetres, or of the map, in its units, whichever is shown; empty where there
/// is no map.
std::optional<Identified> identifyAt(DocumentViews& views, QPointF const& place);

/// Tells what lies under the mouse: on a data frame of the page, or on the map.
class IdentifyTool final : public SysFramework::BaseTool, public HostTool {
public:
  /// Both are borrowed.
  IdentifyTool(DocumentSession const& session, DocumentViews& views);
  ~IdentifyTool() override;

  bool IsEnable() override;
  bool Activate() override;
  bool Deactivate() override;
  void OnEnterEvent(QEvent* event) override;
  void OnMouseDown(QMouseEvent* event) override;

private:
  void look(std::optional<MapPlace> const& at);

  DocumentSession const& session_;
  DocumentViews& views_;
  QMetaObject::Connection clicks_;  // on the map
  QMetaObject::Connection ends_;    // of the document
  OpenTables tables_;
};
