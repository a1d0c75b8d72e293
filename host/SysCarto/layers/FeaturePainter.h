#pragma once

#include "host/SysCarto/layers/ThinnedFeatures.h"
#include "host/SysDisplay/DrawTarget.h"

#include <QVector>

#include <memory>

namespace SysDisplay {
class Symbol;
}

namespace SysCarto {

/// A symbol made ready to draw features on one target.
class FeaturePainter {
public:
  /// An empty pointer for no symbol, and for one that draws nothing.
  static std::unique_ptr<FeaturePainter> create(SysDisplay::DrawTarget& target, SysDisplay::Symbol const* symbol);

  /// The symbols that a layer draws one after the other, each for all of its features: the lines of a layered line, so
  /// that roads that cross join over their casings. Any other symbol stands for itself.
  static QVector<SysDisplay::Symbol const*> passesOf(SysDisplay::Symbol const* symbol);

  virtual ~FeaturePainter();

  /// How far from its geometry the symbol reaches, in pixels.
  virtual double reachPx() const = 0;

  /// Draws the parts of one feature that the symbol is for and that meet `area` (map units, reach included).
  virtual void draw(ThinnedFeatures& features, int feature, Box const& area) = 0;
};

}  // namespace SysCarto
