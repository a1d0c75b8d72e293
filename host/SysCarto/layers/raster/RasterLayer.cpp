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
#include <limits>
#include <list>

namespace SysCarto {

using SysDisplay::DisplayTransformation;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

namespace {

constexpr int featurePhase = 1;
constexpr int cellPx = 256;
constexpr size_t mostCells = 96;
constexpr int groundStep = 16;                  // pixels between places at which the ground is measured
constexpr int maxPicturePx = 64 * 1024 * 1024;  // of one picture in a file of shapes

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(RasterLayer)
};

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
  PixelPlaces const places = places_->find(grid, {0, 0, 1, 1});
  std::vector<double> values;
  bool isAny = false;
  for (size_t i = 1; i <= raster_->bands().size() && !places.isEmpty; ++i) {
    SampledPixels sampled;
    bool const isThere =
        sampleRaster(*raster_, places, {static_cast<int>(i)}, Resampling::Nearest, sampled).isEmpty() &&
        sampled.cover[0] > 0;
    values.push_back(isThere ? double(sampled.bands[0][0]) : std::numeric_limits<double>::quiet_NaN());
    isAny = isAny || isThere;
  }
  return isAny ? values : std::vector<double>();
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

// Measured on a lattice whose outer nodes neighbouring cells share, and found between them: so cells meet. A node
// beyond the edge of the globe does not count.
std::vector<GroundPixel> RasterLayer::groundOf(PixelGrid const& grid, QRect const& area) const {
  constexpr int nodes = cellPx / groundStep + 1;
  std::vector<GroundPixel> lattice, pixels;
  for (int row = 0; row < nodes; ++row)
    for (int column = 0; column < nodes; ++column) {
      QPointF const node = area.topLeft() + QPoint(column, row) * groundStep;
      auto const metres = [&](QPointF const& half) {
        return ground_->measuredBetween(grid.toMap.map(node - half), grid.toMap.map(node + half));
      };
      lattice.push_back({metres({0.5, 0}), metres({0, 0.5})});
    }
  pixels.reserve(size_t(area.width()) * size_t(area.height()));
  for (int y = 0; y < area.height(); ++y)
    for (int x = 0; x < area.width(); ++x) {
      double const right = (x % groundStep + 0.5) / groundStep, low = (y % groundStep + 0.5) / groundStep;
      size_t const first = size_t(y / groundStep * nodes + x / groundStep);
      double weights = 0;
      GroundPixel pixel{0, 0};
      auto const add = [&](size_t node, double weight) {
        GroundPixel const& one = lattice[node];
        if (one.across <= 0 || one.down <= 0) return;
        weights += weight;
        pixel.across += weight * one.across;
        pixel.down += weight * one.down;
      };
      add(first, (1 - right) * (1 - low));
      add(first + 1, right * (1 - low));
      add(first + nodes, (1 - right) * low);
      add(first + nodes + 1, right * low);
      double const nominal = grid.pixelUnits * ground_->nominalUnit();
      pixels.push_back(weights > 0 ? GroundPixel{pixel.across / weights, pixel.down / weights}
                                   : GroundPixel{nominal, nominal});
    }
  return pixels;
}

}  // namespace SysCarto
