#include "FillQueue.h"

#include "host/SysDisplay/CoverageGrid.h"
#include "host/SysDisplay/DevicePath.h"
#include "host/SysDisplay/DrawingBudget.h"
#include "host/SysGeometry/PlaneGeometry.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <cmath>
#include <optional>

namespace SysDisplay {

using SysGeometry::Box;
using SysGeometry::boxOf;

namespace {

// The rasteriser has room for few cells at a time, and goes through all edges of a polygon again for every few rows;
// so a band is low even where few threads share the work.
constexpr int bandRows = 64;

constexpr size_t batchPoints = 1024;
constexpr size_t maxBatches = 64;  // that wait: about a megabyte

// A polygon with fewer points is not worth a look at which of them concern a band.
constexpr int pointsWorthDropping = 64;

// Half of the widest polygon that the rasteriser's 32 bit arithmetic can take.
constexpr double halfBoxPx = 16000.0;

// Apart from Qt's own pool, whose threads its work on large images waits for.
QThreadPool& helperThreads() {
  static QThreadPool threads;
  return threads;
}

void cutToBox(PointRuns& rings, Box const& box) {
  PointRuns result;
  for (int i = 0; i < rings.count(); ++i) {
    std::vector<QPointF> const ring(rings.run(i), rings.run(i) + rings.size(i));
    for (QPointF const& point : SysGeometry::clippedRing(ring, box)) result.add(point);
    result.endRun();
  }
  std::swap(rings, result);
}

bool isMovedByWholePixels(QTransform const& transform) {
  return transform.type() <= QTransform::TxTranslate && transform.dx() == std::floor(transform.dx()) &&
         transform.dy() == std::floor(transform.dy());
}

// Qt fills twice as fast where it need not convert pixels. With red and blue exchanged in the colours, too, these two
// have the same bytes.
QImage::Format fasterFormat(QImage::Format format) {
  bool const isExchanged =
      QSysInfo::ByteOrder == QSysInfo::LittleEndian && format == QImage::Format_RGBA8888_Premultiplied;
  return isExchanged ? QImage::Format_ARGB32_Premultiplied : format;
}

QColor withRedAndBlueExchanged(QColor const& color) {
  QRgba64 const given = color.rgba64();
  return QColor::fromRgba64(given.blue(), given.green(), given.red(), given.alpha());
}

// The image on which a painter draws, where several painters may as well draw on parts of it.
std::optional<QImage> sharedImage(QPainter const& painter) {
  if (!painter.device() || painter.device()->devType() != QInternal::Image) return std::nullopt;
  auto const& image = *static_cast<QImage const*>(painter.device());
  if (image.depth() != 32 || image.devicePixelRatio() != 1 || painter.hasClipping() || painter.opacity() != 1 ||
      painter.compositionMode() != QPainter::CompositionMode_SourceOver ||
      !isMovedByWholePixels(painter.combinedTransform()))
    return std::nullopt;
  // Through a constant image, since another one would make a copy of its pixels.
  auto* const pixels = const_cast<uchar*>(image.constBits());
  return QImage(pixels, image.width(), image.height(), image.bytesPerLine(), fasterFormat(image.format()));
}

}  // namespace

/// Some rows of the image, or all that the queue's painter shows.
class FillQueue::Band {
public:
  explicit Band(QPainter& painter) : painter_(&painter), exchanges_(false) {}

  Band(QImage& image, bool exchanges, QTransform const& transform, int firstRow, int rows)
      : rows_(image.scanLine(firstRow), image.width(), rows, image.bytesPerLine(), image.format()),
        own_(std::make_unique<QPainter>(&rows_)),
        painter_(own_.get()),
        pixels_(QRectF(-transform.dx(), firstRow - transform.dy(), image.width(), rows).toRect()),
        top_(pixels_.top()),
        bottom_(top_ + rows),
        exchanges_(exchanges) {
    own_->translate(-pixels_.topLeft());
    prepare();
  }

  // Painting that stops half-way can't be taken up again: without memory, the program ends here as elsewhere in Qt.
  void paint(Batch const& batch) noexcept {
    if (!own_) prepare();  // others draw with that painter in between
    for (Fill const& fill : batch.fills)
      if (fill.bounds.bottom() > top_ && fill.bounds.top() < bottom_ && !DrawingBudget::isGivenUp())
        paint(batch.rings, fill);
  }

  size_t next = 0;  // of the batches
  bool busy = false;

private:
  void prepare() {
    painter_->setRenderHint(QPainter::Antialiasing);
    painter_->setPen(Qt::NoPen);
    color_ = QColor();
    texture_ = nullptr;
    QPointF const centre = QRectF(painter_->viewport()).center() -
                           QPointF(painter_->combinedTransform().dx(), painter_->combinedTransform().dy());
    QPointF const middle(std::round(centre.x()), std::round(centre.y()));
    box_ = QRectF(middle - QPointF(halfBoxPx, halfBoxPx), middle + QPointF(halfBoxPx, halfBoxPx));
  }

  void setBrush(Fill const& fill) {
    if (fill.texture && fill.texture != texture_) {
      QImage const& given = fill.texture->image;
      QImage const exchanged(given.constBits(), given.width(), given.height(), given.bytesPerLine(),
                             fasterFormat(given.format()));
      painter_->setBrush(QBrush(exchanges_ ? exchanged : given));
      painter_->setBrushOrigin(fill.texture->place);
    } else if (!fill.texture && (texture_ || color_ != fill.color)) {
      painter_->setBrush(exchanges_ ? withRedAndBlueExchanged(fill.color) : fill.color);
    }
    texture_ = fill.texture;
    color_ = fill.color;
  }

  void paint(PointRuns const& rings, Fill const& fill) {
    setBrush(fill);
    bool const fits = box_.contains(fill.bounds);
    bool const reachesBeyond = fill.bounds.top() < top_ || fill.bounds.bottom() > bottom_;
    bool const isLong = rings.size(fill.firstRun, fill.lastRun) >= pointsWorthDropping;
    if (fits && !(reachesBeyond && isLong)) return draw(rings, fill.firstRun, fill.lastRun, fill.rule);
    part_.clear();
    QRectF const rows(-maxCoordinatePx, top_, 2 * maxCoordinatePx, bottom_ - top_);
    for (int i = fill.firstRun; i <= fill.lastRun; ++i)
      if (meets(rings.run(i), rings.size(i))) dropBeyond(rings.run(i), rings.size(i), rows, part_);
    if (!fits) cutToBox(part_, boxOf(box_));
    if (!part_.isEmpty()) draw(part_, 0, part_.count() - 1, fill.rule);
  }

  // Of thousands of dashes, each band has few.
  bool meets(QPointF const* points, int count) const {
    auto const [high, low] =
        std::minmax_element(points, points + count, [](QPointF const& a, QPointF const& b) { return a.y() < b.y(); });
    return low->y() > top_ && high->y() < bottom_;
  }

  void draw(PointRuns const& rings, int first, int last, Qt::FillRule rule) {
    if (own_ && rings.size(first, last) > mostVerticesOfRows) return drawByPixels(rings, first, last, rule);
    // A polygon of few points might be taken for a rectangle, which the raster engine draws in another way.
    if (first == last && rings.size(first) > 5) {
      painter_->drawPolygon(rings.run(first), rings.size(first), rule);
      return;
    }
    path_.clear();
    path_.setFillRule(rule);
    path_.reserve(rings.size(first, last) + 1);
    for (int i = first; i <= last; ++i) {
      QPointF const* points = rings.run(i);
      path_.moveTo(points[0]);
      for (int j = 1; j < rings.size(i); ++j) path_.lineTo(points[j]);
    }
    painter_->drawPath(path_);
  }

  void drawByPixels(PointRuns const& rings, int first, int last, Qt::FillRule rule) {
    coverage_.clear(pixels_);
    for (int i = first; i <= last; ++i) {
      QPointF const* points = rings.run(i);
      for (int j = 0, count = rings.size(i); j < count; ++j)
        coverage_.add(points[j], points[j + 1 < count ? j + 1 : 0]);
    }
    QImage mask = coverage_.mask(rule);
    QPainter filling(&mask);
    filling.setCompositionMode(QPainter::CompositionMode_SourceIn);
    filling.setBrushOrigin(painter_->brushOrigin() - pixels_.topLeft());
    filling.fillRect(mask.rect(), painter_->brush());
    filling.end();
    painter_->drawImage(pixels_.topLeft(), mask);
  }

  QImage rows_;
  std::unique_ptr<QPainter> own_;
  QPainter* painter_;
  QRect pixels_;                                              // of the rows, in the painter's coordinates
  double top_ = -maxCoordinatePx, bottom_ = maxCoordinatePx;  // in the painter's coordinates
  QRectF box_;
  bool const exchanges_;
  QColor color_;  // of the last fill; invalid at first
  std::shared_ptr<Texture const> texture_;
  PointRuns part_;
  QPainterPath path_;
  CoverageGrid coverage_;
};

FillQueue::FillQueue(QPainter& painter) : painter_(painter) {}

FillQueue::~FillQueue() {
  finish();
  std::unique_lock<std::mutex> lock(mutex_);
  ends_ = true;
  changed_.notify_all();
  changed_.wait(lock, [this] { return helpers_ == 0; });
}

void FillQueue::add(PointRuns const& rings, QColor const& color, Qt::FillRule rule) {
  if (color.alpha() > 0) add(rings, {0, 0, QRectF(), color, nullptr, rule});
}

void FillQueue::add(PointRuns const& rings, std::shared_ptr<Texture const> const& texture, Qt::FillRule rule) {
  add(rings, {0, 0, QRectF(), QColor(), texture, rule});
}

QImage::Format FillQueue::textureFormat() const {
  auto const* device = painter_.device();
  bool const isImage = device && device->devType() == QInternal::Image;
  bool const isExchanged =
      isImage && static_cast<QImage const*>(device)->format() == QImage::Format_RGBA8888_Premultiplied;
  return isExchanged ? QImage::Format_RGBA8888_Premultiplied : QImage::Format_ARGB32_Premultiplied;
}

void FillQueue::add(PointRuns const& rings, Fill fill) {
  if (rings.isEmpty()) return;
  fill.firstRun = open_.rings.count();
  open_.rings.append(rings);
  fill.lastRun = open_.rings.count() - 1;
  fill.bounds = rings.bounds();
  open_.fills.push_back(std::move(fill));
  if (open_.rings.points.size() >= batchPoints) publish();
}

void FillQueue::publish() {
  if (bands_.empty()) cutIntoBands();
  auto batch = std::make_unique<Batch>(std::move(open_));
  open_ = Batch();
  size_t waiting;
  {
    std::lock_guard<std::mutex> const lock(mutex_);
    batches_.push_back(std::move(batch));
    waiting = batches_.size();
  }
  if (bands_.size() == 1 || waiting > maxBatches) return paintAll();
  changed_.notify_one();
  if (waiting == 1) callHelpers();
}

void FillQueue::cutIntoBands() {
  if (auto image = sharedImage(painter_)) {
    bool const exchanges = image->format() != static_cast<QImage const*>(painter_.device())->format();
    for (int row = 0; row < image->height(); row += bandRows)
      bands_.push_back(std::make_unique<Band>(*image, exchanges, painter_.combinedTransform(), row,
                                              std::min(bandRows, image->height() - row)));
  }
  if (bands_.empty()) bands_.push_back(std::make_unique<Band>(painter_));
}

// Helpers count themselves out only when the queue ends, so that here their number can be read without a lock.
void FillQueue::callHelpers() noexcept {
  static int const cores = QThread::idealThreadCount();  // each time it is asked, it reads a file
  int const wanted = std::min(cores, static_cast<int>(bands_.size())) - 1;
  while (helpers_ < wanted) {
    {
      std::lock_guard<std::mutex> const lock(mutex_);
      ++helpers_;
    }
    if (helperThreads().tryStart([this] { help(); })) continue;
    std::lock_guard<std::mutex> const lock(mutex_);
    --helpers_;
    return;
  }
}

void FillQueue::help() {
  std::unique_lock<std::mutex> lock(mutex_);
  while (!ends_)
    if (!paintOne(lock)) changed_.wait(lock);
  --helpers_;
  changed_.notify_all();
}

// Paints one batch onto the band that is furthest behind. False where all that can be painted is being painted.
bool FillQueue::paintOne(std::unique_lock<std::mutex>& lock) {
  Band* behind = nullptr;
  for (auto const& band : bands_)
    if (!band->busy && band->next < batches_.size() && (!behind || band->next < behind->next)) behind = band.get();
  if (!behind) return false;
  behind->busy = true;
  Batch const& batch = *batches_[behind->next];
  lock.unlock();
  behind->paint(batch);
  lock.lock();
  behind->busy = false;
  ++behind->next;
  changed_.notify_all();
  return true;
}

bool FillQueue::isPainted() const {
  return std::all_of(bands_.begin(), bands_.end(), [this](auto const& band) { return band->next == batches_.size(); });
}

void FillQueue::finish() {
  if (!open_.fills.empty()) {
    if (bands_.empty()) {
      Band(painter_).paint(open_);
      open_ = Batch();
    } else {
      publish();
    }
  }
  paintAll();
}

void FillQueue::paintAll() {
  std::unique_lock<std::mutex> lock(mutex_);
  while (!isPainted())
    if (!paintOne(lock)) changed_.wait(lock);
  batches_.clear();
  for (auto const& band : bands_) band->next = 0;
}

}  // namespace SysDisplay
