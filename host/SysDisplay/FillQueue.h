#pragma once

#include "host/SysDisplay/PointRuns.h"

#include <QColor>
#include <QImage>
#include <QPoint>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <vector>

class QPainter;

namespace SysDisplay {

/// Pixels to fill with, in place of one colour: those of `image`, whose upper left corner lies at `place` in the
/// painter's coordinates. It is to cover all that is filled with it.
struct Texture {
  QImage image;  ///< in the queue's `textureFormat`
  QPoint place;
};

/// Fills on their way to a painter, in the order in which they are added.
///
/// Where the painter draws on an image in memory, without clipping, the image is cut into bands of rows, and helpers
/// on other threads rasterise a band each while more is added. What a band shows is what the image would show, to the
/// last bit, but for what has too many vertices in a band for QPainter, which may differ by some levels. Everywhere
/// else, and where little is to be drawn, the painter itself does it.
///
/// While fills are waiting, nothing else may draw on the image or change the painter. Belongs to one thread, as the
/// painter does.
class SYSDISPLAY_EXPORT FillQueue {
public:
  /// The painter must outlive the queue, which may leave it with another pen, brush and antialiasing.
  explicit FillQueue(QPainter& painter);
  ~FillQueue();
  FillQueue(FillQueue const&) = delete;
  FillQueue& operator=(FillQueue const&) = delete;

  /// Fills the runs as rings in one colour, antialiased. Points should lie on the 1/64 pixel grid. What lies too far
  /// from the device for QPainter is cut off.
  void add(PointRuns const& rings, QColor const& color, Qt::FillRule rule);

  /// Fills with pixels. Those that the rings let through must not change until `finish`; others may.
  void add(PointRuns const& rings, std::shared_ptr<Texture const> const& texture, Qt::FillRule rule);
  QImage::Format textureFormat() const;

  /// When it returns, all that was added is drawn.
  void finish();

private:
  class Band;
  struct Fill {
    int firstRun, lastRun;  // of the batch's rings
    QRectF bounds;
    QColor color;
    std::shared_ptr<Texture const> texture;  // in place of the colour
    Qt::FillRule rule;
  };
  struct Batch {
    PointRuns rings;
    std::vector<Fill> fills;
  };

  void add(PointRuns const& rings, Fill fill);
  void publish();
  void paintAll();
  void cutIntoBands();
  void callHelpers() noexcept;
  void help();
  bool paintOne(std::unique_lock<std::mutex>& lock);
  bool isPainted() const;

  QPainter& painter_;
  Batch open_;
  std::vector<std::unique_ptr<Band>> bands_;

  std::mutex mutex_;
  std::condition_variable changed_;
  std::vector<std::unique_ptr<Batch>> batches_;  // published; painted band by band, in their order
  int helpers_ = 0;
  bool ends_ = false;
};

}  // namespace SysDisplay
