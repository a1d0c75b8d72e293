#pragma once

#include "host/SysCarto/layers/WindowReading.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace SysCarto {

/// A part of a map that is drawn, labelled or asked.
struct WindowWish {
  Box needed;                ///< what has to be there
  Box wanted;                ///< what is read, if that has to be; contains what is needed
  double unitsPerPixel = 0;  ///< of the map
  bool isPart = false;       ///< of what its frame shows
  LabelChoice labels;
};

/// The windows of a layer that were read last, and those that are being read. What lies within one of them, and is no
/// finer, needs no reading. The last one of each layer stays, and that of a part; those before have some memory
/// together, whatever layers they are of.
class FeatureWindows {
public:
  using Taken = std::function<void(ReadFeatures const& window)>;

  /// `changed` is called when `problem` has become another, and `taken` with each window that was read.
  FeatureWindows(std::function<void()> changed, Taken taken);
  ~FeatureWindows();

  /// The features in an area, or around it. Waits for them while `progress`, which may be empty, wants it, and answers
  /// an empty pointer where it does not. `WithoutWaiting` there may be fewer or coarser ones, or none.
  std::shared_ptr<FeaturePack const> window(WindowWish const& wish, WindowReading::Read const& read,
                                            ReadProgress const& progress);

  /// Why a window that was read is not whole, until one was read again; empty where all are.
  QString problem() const;

  /// The same for what a page would be drawn of now: what failed some time ago would be read again.
  QString failure() const;

  /// How much was read of what is being read, 0 where nobody knows; nothing where nothing is.
  std::optional<double> share() const;

  /// Another number when there is more of what was missing without waiting.
  int news() const;

  /// Forgets all, and gives up what is being read.
  void clear();

private:
  using Reading = std::shared_ptr<WindowReading>;

  // Shared with what calls back.
  struct State {
    std::function<void()> changed;
    Taken taken;
    std::array<Reading, 2> underWay;  // of what the frame shows, and of a part of it
    bool owesMore = false;            // somebody who did not wait got less
    int news = 0;

    void take(Reading& reading, bool isPart);
    void takeAll();
    void tell();
  };
  Reading reading(WindowWish const& wish, double cell, WindowReading::Read const& read);
  void giveUp(Reading const& reading);

  std::shared_ptr<State> state_;
};

}  // namespace SysCarto
