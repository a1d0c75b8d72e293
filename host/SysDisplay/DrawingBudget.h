#pragma once

#include <SysDisplay/Export.h>

class QRectF;

namespace SysDisplay {

struct PointRuns;

/// How much drawing a page is worth, counted and not timed, so that the same page comes out the same on every machine.
/// While it lives, all that is drawn on its thread is counted; once it is spent, nothing is drawn any more, and whoever
/// made it says so in place of the picture. Without one there is no end.
///
/// Work that other threads do is not counted there, and need not be: the fills of a `FillQueue` were counted when they
/// were added, and how many features are projected beside the reading is bounded by the size of their file.
class SYSDISPLAY_EXPORT DrawingBudget {
public:
  /// What it costs to write one pixel is 1.
  explicit DrawingBudget(double pixels);
  ~DrawingBudget();
  DrawingBudget(DrawingBudget const&) = delete;
  DrawingBudget& operator=(DrawingBudget const&) = delete;

  bool isExceeded() const;

  /// As much again as at first, for another page.
  void renew() { left_ = pixels_; }

  /// Spends all there is, on whatever thread: the rasteriser gave up, and the picture lacks what it was to fill. False
  /// where none counts.
  static bool giveUp();
  static bool isGivenUp();

  // Of the one that counts on this thread.

  static void spend(double pixels);
  static bool isSpent();

  /// Vertices that are computed, before any of them is drawn.
  static void spendOnVertices(double count);

  /// Rings that are filled on so much of a device: their pixels, and the rows that their edges cross.
  static void spendOnFill(PointRuns const& rings, QRectF const& device);

private:
  double const pixels_;
  double left_;
  DrawingBudget* const before_;
};

}  // namespace SysDisplay
