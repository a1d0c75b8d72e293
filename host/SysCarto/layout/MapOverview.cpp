#include "MapOverview.h"

#include "MapPicture.h"

#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/maps/MapHost.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/projection/GeometryProjector.h"
#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/PathDrawing.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapFrameElement.h>
#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

#include <algorithm>
#include <vector>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysDisplay::DisplayTransformationHost;
using SysDisplay::FillSymbol;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

// A side bends as a whole, and what a projector takes for straight may be a millimetre on a poster.
constexpr int piecesOfSide = 64;
constexpr double leastUm = 1500;  // on paper, of the longer side of an area; a smaller one would hardly be seen

_ptr_t<FillSymbol> usualSymbol() {
  auto const outline = make<SysDisplay::SimpleLineSymbol>();
  outline->SetColor(QColor(0xc0, 0x20, 0x20));
  outline->SetWidth(1);
  outline->SetJoinStyle(SysDisplay::LineJoinStyle::Miter);
  auto const symbol = make<SysDisplay::SimpleFillSymbol>();
  symbol->SetStyle(SysDisplay::SimpleFillStyle::Null);
  symbol->SetOutlineSymbol(outline);
  return symbol;
}

// Where the frame of a map is, in its own units.
OGRPolygon areaOf(Envelope const& extent, QTransform const& turn) {
  QTransform const back = turn.inverted();
  QPointF const corners[] = {{extent.GetXMin(), extent.GetYMin()},
                             {extent.GetXMax(), extent.GetYMin()},
                             {extent.GetXMax(), extent.GetYMax()},
                             {extent.GetXMin(), extent.GetYMax()}};
  OGRLinearRing ring;
  for (int side = 0; side < 4; ++side)
    for (int piece = 0; piece < piecesOfSide; ++piece) {
      QPointF const way = corners[(side + 1) % 4] - corners[side];
      QPointF const point = back.map(corners[side] + way * piece / piecesOfSide);
      ring.addPoint(point.x(), point.y());
    }
  ring.closeRings();
  OGRPolygon area;
  area.addRing(&ring);
  return area;
}

struct Piece {
  PartKind kind;
  std::vector<double> xy;

  SysDisplay::WorldRun run() const { return {xy.data(), static_cast<int>(xy.size() / 2)}; }
};

class Pieces final : public PartSink {
public:
  void startPolygon() override {}
  void addPart(PartKind kind, double const* xy, int count) override {
    pieces << Piece{kind, std::vector<double>(xy, xy + 2 * count)};
    for (int i = 0; i < count; ++i) covered.add(xy[2 * i], xy[2 * i + 1]);
  }

  // As large at least, about the centre.
  Pieces grownTo(double size) const {
    double const width = covered.xmax - covered.xmin, height = covered.ymax - covered.ymin;
    double const longer = std::max(width, height);
    if (covered.isEmpty() || !(longer > 0) || longer >= size) return *this;
    double const centre[] = {covered.xmin + width / 2, covered.ymin + height / 2};
    Pieces grown;
    for (Piece piece : pieces) {
      for (size_t i = 0; i < piece.xy.size(); ++i)
        piece.xy[i] = centre[i % 2] + (piece.xy[i] - centre[i % 2]) * size / longer;
      grown.addPart(piece.kind, piece.xy.data(), static_cast<int>(piece.xy.size() / 2));
    }
    return grown;
  }

  QVector<Piece> pieces;
  SysGeometry::Box covered;
};

// The transformation of a map has its paper in micrometres.
double unitsPerUm(Map const& map) {
  auto const onPaper = map.GetDisplayTransformation();
  return onPaper->GetVisibleBounds()->GetWidth() / onPaper->GetDeviceFrame().width();
}

}  // namespace

struct MapOverview::Private {
  _ptr_t<Map> map;
  _ptr_t<FillSymbol> symbol;

  // What was projected last, since a page is drawn in many tiles. Clones share it.
  struct Area {
    QString from, to;
    Envelope extent;
    QTransform turn;
    Pieces parts;
  };
  mutable std::shared_ptr<Area const> area;

  Pieces const& areaOn(Map const& shown) const;
};

Pieces const& MapOverview::Private::areaOn(Map const& shown) const {
  QString const from = map->GetCoordinateSystem(), to = shown.GetCoordinateSystem();
  Envelope const extent(*map->GetExtent());
  QTransform const turn = DisplayTransformationHost::turn(*map->GetDisplayTransformation());
  bool const isKnown =
      area && area->from == from && area->to == to && haveSameCorners(area->extent, extent) && area->turn == turn;
  if (isKnown) return area->parts;
  auto made = std::make_shared<Area>(Area{from, to, extent, turn, {}});
  QString problem;
  auto const projector =
      GeometryProjector::create(makeCoordinateSystem(from).get(), makeCoordinateSystem(to).get(), problem);
  if (projector) projector->add(areaOf(extent, turn), made->parts);
  area = made;
  return area->parts;
}

MapOverview::MapOverview() : d(std::make_unique<Private>()) {}
MapOverview::MapOverview(MapOverview const& other) : IMapGrid(other), d(std::make_unique<Private>(*other.d)) {}
MapOverview::~MapOverview() = default;

_ptr_t<Map> const& MapOverview::map() const { return d->map; }
void MapOverview::setMap(_ptr_t<Map> const& map) { d->map = map; }
_ptr_t<FillSymbol> const& MapOverview::symbol() const { return d->symbol; }
void MapOverview::setSymbol(_ptr_t<FillSymbol> const& symbol) { d->symbol = symbol; }

QString MapOverview::GetName() const { return d->map ? d->map->GetName() : QString(); }
void MapOverview::SetName(QString const&) {}

void MapOverview::Draw(QPainter& painter, _ptr_t<SysUI::TrackerCancel> const&,
                       _ptr_t<DisplayTransformation> const& transformation, _ptr_t<MapFrameElement> const& frame) {
  if (!frame || !transformation || !d->map || d->map == frame->GetMap() || !MapHost::isFramed(*d->map)) return;
  drawOnFrame(painter, *frame, *transformation, [&](DisplayTransformation const& onMap) {
    Map const& shown = *frame->GetMap();
    Pieces const area = d->areaOn(shown).grownTo(leastUm * unitsPerUm(shown));
    SysDisplay::DrawTarget target(painter, onMap);
    auto const drawing = SysDisplay::prepared(target, *(d->symbol ? d->symbol : usualSymbol()));
    if (!drawing) return;
    for (Piece const& piece : area.pieces) {
      if (piece.kind == PartKind::Outline)
        drawing->addLine(piece.run());
      else
        drawing->addRing(piece.run(), piece.kind == PartKind::Ring);
    }
    drawing->draw(area.covered);
  });
}

_ptr_t<SysGeometry::Geometry> MapOverview::GetBoundary(_ptr_t<DisplayTransformation> const&,
                                                       MapFrameElement const&) const {
  return make<Envelope>();
}

_ptr_t<IMapGrid> MapOverview::Clone() const { return make<MapOverview>(*this); }

}  // namespace SysCarto
