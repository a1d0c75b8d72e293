#include "RasterLayer.h"

#include "RasterColors.h"

#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/projection/GroundScale.h"
#include "host/SysDisplay/DisplayTransformationHost.h"
#include "host/SysDisplay/DrawTarget.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <list>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

constexpr int featurePhase = 1;
constexpr int cellPx = 256;
constexpr size_t mostCells = 96;
constexpr int betweenGroundRows = 16;
constexpr int maxPicturePx = 64 * 1024 * 1024;  // of one picture in a file of shapes

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(RasterLayer)
};

int floorDivided(int number, int by) { return number >= 0 ? number / by : -((-number + by - 1) / by); }

// Cells that were drawn last, since tiles of a page share some of them.
class CellCache {
public:
  struct Key {
    quint64 drawing;
    QTransform toMap;
    QPoint number;

    bool operator==(Key const& other) const {
      return drawing == other.drawing && number == other.number && toMap == other.toMap;
    }
  };

  QImage const* find(Key const& key) {
    auto const found = std::find_if(cells_.begin(), cells_.end(), [&](auto const& cell) { return cell.first == key; });
    if (found == cells_.end()) return nullptr;
    cells_.splice(cells_.begin(), cells_, found);
    return &found->second;
  }
  void add(Key const& key, QImage const& image) {
    cells_.emplace_front(key, image);
    if (cells_.size() > mostCells) cells_.pop_back();
  }

private:
  std::list<std::pair<Key, QImage>> cells_;
};

CellCache& cache() {
  static CellCache cache;
  return cache;
}

quint64 nextDrawing() {
  static quint64 latest = 0;
  return ++latest;
}

}  // namespace

RasterLayer::RasterLayer() = default;
RasterLayer::~RasterLayer() = default;

int RasterLayer::GetType() const { return LayerType::Raster; }

void RasterLayer::forget() {
  colors_.reset();
  drawing_ = nextDrawing();
  LayerHost::changeLook(*this);
}

QString RasterLayer::open(RasterSourceSettings const& source, QString const& mapSystem) {
  settings_ = source;
  places_.reset();
  problem_.clear();
  raster_ = RasterSource::open(source, problem_);
  QString reason;
  if (raster_) places_ = RasterPlaces::create(*raster_, mapSystem, reason);
  if (!reason.isEmpty())
    problem_ =
        Texts::tr("The raster “%1” can't be taken into the map's coordinate system: %2.").arg(source.file, reason);
  ground_ = std::make_unique<GroundScale>(mapSystem);
  if (problem_.isEmpty()) problem_ = checkBands();
  if (!problem_.isEmpty()) {
    raster_.reset();
    places_.reset();
  }
  forget();
  return problem_;
}

QString RasterLayer::checkBands() const {
  int const count = static_cast<int>(raster_->bands().size());
  std::vector<int> const wanted = look_.renderer.bands();
  int const highest = *std::max_element(wanted.begin(), wanted.end());
  if (highest <= count) return {};
  return Texts::tr("The raster “%1” has %2 bands and no band %3; choose another band.")
      .arg(settings_.file)
      .arg(count)
      .arg(highest);
}

void RasterLayer::setLook(RasterLook const& look) {
  look_ = look;
  forget();
}

SysGeometry::Box RasterLayer::box() const { return places_ ? places_->box() : SysGeometry::Box(); }

RasterColors const& RasterLayer::colors() const {
  if (!colors_) colors_ = std::make_unique<RasterColors>(look_.renderer, look_.tone, *raster_);
  return *colors_;
}

QList<LegendClass> RasterLayer::legendClasses() const { return raster_ ? colors().legend() : QList<LegendClass>(); }

std::vector<double> RasterLayer::valuesAt(QPointF const& place) const {
  if (!places_) return {};
  PixelGrid grid;
  grid.toMap = QTransform(1e-9, 0, 0, -1e-9, place.x(), place.y());
  grid.pixelUnits = 1;
  std::vector<int> bands;
  for (size_t i = 1; i <= raster_->bands().size() && i <= 16; ++i) bands.push_back(static_cast<int>(i));
  SampledPixels sampled;
  PixelPlaces const places = places_->find(grid, {0, 0, 1, 1});
  bool const isRead = sampleRaster(*raster_, places, bands, Resampling::Nearest, sampled).isEmpty();
  std::vector<double> values;
  if (!isRead || sampled.cover[0] <= 0) return values;
  for (auto const& band : sampled.bands) values.push_back(double(band[0]));
  return values;
}

void RasterLayer::Draw(QPainter& painter, _ptr_t<DisplayTransformation> const& transformation, int phase,
                       _ptr_t<TrackerCancel> const& cancel) {
  if (phase != featurePhase || !transformation || !places_) return;
  drawWithEffects(LayerHost::effects(*this), painter, [&](QPainter& own) { drawPixels(own, *transformation, cancel); });
}

// In cells that hang on the corner of the map's frame, of which no tile draws a part: so tiles meet.
void RasterLayer::drawPixels(QPainter& painter, DisplayTransformation const& transformation,
                             _ptr_t<TrackerCancel> const& cancel) {
  QTransform const toDevice = transformation.ToDevice();
  QRect const reached = SysDisplay::reachableArea(painter).toAlignedRect();
  if (reached.isEmpty() || !toDevice.isInvertible()) return;
  QPoint origin;
  PixelGrid const grid =
      PixelGrid::of(toDevice, SysDisplay::DisplayTransformationHost::patternOrigin(transformation), origin);
  auto* const canvas = SysDisplay::VectorCanvas::of(painter);
  QRect const area = reached.translated(-origin);
  int const left = floorDivided(area.left(), cellPx), right = floorDivided(area.right(), cellPx);
  int const top = floorDivided(area.top(), cellPx), bottom = floorDivided(area.bottom(), cellPx);
  int const rowsAtOnce = canvas ? std::max(1, maxPicturePx / (cellPx * area.width())) : 1;
  for (int first = top; first <= bottom; first += rowsAtOnce) {
    int const last = std::min(bottom, first + rowsAtOnce - 1);
    QRect const strip = area & QRect(area.left(), first * cellPx, area.width(), (last - first + 1) * cellPx);
    QImage picture;
    if (canvas) {
      picture = QImage(strip.size(), QImage::Format_RGBA8888_Premultiplied);
      picture.fill(Qt::transparent);
    }
    bool isEmpty = true;
    for (int row = first; row <= last; ++row)
      for (int column = left; column <= right; ++column) {
        if (cancel && cancel->IsCanced()) return;
        QImage const image = cell(grid, {column, row});
        if (image.isNull()) continue;
        isEmpty = false;
        QPoint const place(column * cellPx, row * cellPx);
        if (!canvas) {
          painter.drawImage(place + origin, image);
          continue;
        }
        QPainter own(&picture);
        own.drawImage(place - strip.topLeft(), image);
      }
    if (canvas && !isEmpty) {
      QPoint const place = strip.topLeft() + origin;
      canvas->picture({picture, {}}, QTransform::fromScale(strip.width(), strip.height()) *
                                         QTransform::fromTranslate(place.x(), place.y()));
    }
  }
}

QImage RasterLayer::cell(PixelGrid const& grid, QPoint const& number) {
  CellCache::Key const key{drawing_, grid.toMap, number};
  if (QImage const* const kept = cache().find(key)) return *kept;
  RasterRendererSettings const& renderer = look_.renderer;
  QRect const area(number * cellPx, QSize(cellPx, cellPx));
  int const halo = renderer.isRelief() ? 1 : 0;
  PixelPlaces const places = places_->find(grid, area.adjusted(-halo, -halo, halo, halo));
  QImage image;
  if (!places.isEmpty) {
    bool const isPalette = renderer.kind == RasterRendererSettings::Kind::Palette;
    SampledPixels sampled;
    QString const reason =
        sampleRaster(*raster_, places, renderer.bands(), isPalette ? Resampling::Nearest : look_.resampling, sampled);
    if (reason.isEmpty()) {
      image = QImage(area.size(), QImage::Format_RGBA8888_Premultiplied);
      colors().paint(sampled, renderer.isRelief() ? groundOf(grid, area) : std::vector<GroundPixel>(), area.topLeft(),
                     image);
    } else {
      problem_ = Texts::tr("The raster “%1” can't be read to its end: %2.").arg(settings_.file, reason);
    }
  }
  cache().add(key, image);
  return image;
}

// Along the middle of a cell, a few rows measured and the others between them.
std::vector<GroundPixel> RasterLayer::groundOf(PixelGrid const& grid, QRect const& area) const {
  double const x = area.left() + area.width() / 2.0;
  auto const measured = [&](double y) {
    auto const metres = [&](double dx, double dy) {
      return ground_->metresBetween(grid.toMap.map(QPointF(x - dx, y - dy)), grid.toMap.map(QPointF(x + dx, y + dy)));
    };
    return GroundPixel{metres(0.5, 0), metres(0, 0.5)};
  };
  std::vector<GroundPixel> rows;
  for (int from = 0; from < area.height(); from += betweenGroundRows) {
    GroundPixel const above = measured(area.top() + from), below = measured(area.top() + from + betweenGroundRows);
    for (int i = 0; i < betweenGroundRows && from + i < area.height(); ++i) {
      double const part = (i + 0.5) / betweenGroundRows;
      rows.push_back(
          {above.across + part * (below.across - above.across), above.down + part * (below.down - above.down)});
    }
  }
  return rows;
}

}  // namespace SysCarto
