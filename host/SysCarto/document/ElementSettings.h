#pragma once

#include "host/SysCarto/document/DocumentContext.h"
#include "host/SysCarto/document/FrameSettings.h"
#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysCarto/layout/MapOverview.h"

#include <SysCarto/GroupElement.h>
#include <SysCarto/IMapGrid.h>
#include <SysCarto/MapFrameElement.h>
#include <SysCarto/MapSurroundFrame.h>

namespace SysCarto {

/// How many groups lie in each other at most.
constexpr int maxGroupDepth = 16;

/// Where an element is stored: the whole document, how many groups it lies in, and whether it lies on a map.
struct ElementScope {
  DocumentContext& context;
  bool onMap = false;
  int depth = 0;
};

// What a document stores of each kind of element, beside its handle and name. `of` takes it from an element, `list`
// names its fields, and `applyTo` gives it to a new element. Coordinates are page centimetres, or map units on a map.

/// A marker.
struct PointSettings {
  double position[2] = {0, 0};
  SysUtility::_ptr_t<SysDisplay::MarkerSymbol> symbol;

  static PointSettings of(MarkerElement const& marker, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(MarkerElement& marker, ElementScope const& scope) const;
};

struct LineSettings {
  QVector<QPointF> points;
  ArrowHeads heads;
  SysUtility::_ptr_t<SysDisplay::LineSymbol> symbol;

  static LineSettings of(LineElement const& line, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(LineElement& line, ElementScope const& scope) const;
};

struct PolygonSettings {
  QVector<QVector<QPointF>> rings;
  SysUtility::_ptr_t<SysDisplay::FillSymbol> symbol;

  static PolygonSettings of(PolygonElement const& polygon, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(PolygonElement& polygon, ElementScope const& scope) const;
};

/// xmin, ymin, xmax, ymax.
struct RectangleSettings {
  double sides[4] = {0, 0, 0, 0};

  static RectangleSettings of(SysGeometry::Envelope const& rectangle);
  void list(SysUtility::Fields& fields, SysUtility::Range const& range);
  SysUtility::_ptr_t<SysGeometry::Envelope> envelope() const;
};

/// A rectangle or an ellipse.
struct FilledSettings {
  RectangleSettings rectangle;
  SysUtility::_ptr_t<SysDisplay::FillSymbol> symbol;

  template <class E>
  static FilledSettings of(E const& element, ElementScope const&) {
    return {RectangleSettings::of(*element.shape()), element.symbol()};
  }
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  template <class E>
  void applyTo(E& element, ElementScope const&) const {
    element.setShape(rectangle.envelope());
    element.setSymbol(symbol);
  }
};

struct TextElementSettings {
  double position[2] = {0, 0};
  QString text;
  bool fillsPlaceholders = true;
  double widthCm = 0;
  double angle = 0;
  SysUtility::_ptr_t<SysDisplay::TextSymbol> symbol;

  static TextElementSettings of(TextElement const& element, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(TextElement& element, ElementScope const& scope) const;
};

struct PictureSettings {
  RectangleSettings rectangle;
  QString path;  ///< as it is stored: relative to the document where it keeps relative paths
  QString data;
  double angle = 0;

  static PictureSettings of(PictureElement const& picture, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(PictureElement& picture, ElementScope const& scope) const;
};

struct GroupSettings {
  QList<SysUtility::_ptr_t<Element>> members;

  static GroupSettings of(GroupElement const& group, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(GroupElement& group, ElementScope const& scope) const;
};

struct OverviewSettings {
  int map = -1;  ///< its number in the document; −1 for none
  SysUtility::_ptr_t<SysDisplay::FillSymbol> symbol;

  static OverviewSettings of(MapOverview const& overview, DocumentContext const& context);
  void list(SysUtility::Fields& fields, DocumentContext const& context);
  void applyTo(MapOverview& overview, DocumentContext const& context) const;
};

struct MapFrameSettings {
  int map = 0;  ///< its number in the document
  RectangleSettings rectangle;
  FrameSettings frame;
  QVector<OverviewSettings> overviews;
  QList<SysUtility::_ptr_t<IMapGrid>> grids;  ///< the others

  static MapFrameSettings of(MapFrameElement const& element, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(MapFrameElement& element, ElementScope const& scope) const;
};

struct SurroundFrameSettings {
  RectangleSettings rectangle;
  FrameSettings frame;
  SysUtility::_ptr_t<MapSurround> surround;

  static SurroundFrameSettings of(MapSurroundFrame const& element, ElementScope const& scope);
  void list(SysUtility::Fields& fields, ElementScope const& scope);
  void applyTo(MapSurroundFrame& element, ElementScope const& scope) const;
};

}  // namespace SysCarto
