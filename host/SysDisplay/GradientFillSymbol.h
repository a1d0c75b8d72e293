#pragma once

#include "host/SysDisplay/PatternedFill.h"

#include <QVector>

namespace SysDisplay {

enum class GradientShape { Linear, Radial };

/// A colour, and where it stands from the beginning of a gradient (0) to its end (100).
struct GradientStop {
  double percent = 0;
  QColor color;
};

/// Colours that run into each other, over the rectangle that each shape covers, all its parts together.
class SYSDISPLAY_EXPORT GradientFillSymbol final : public PatternedFill {
public:
  /// From light grey at the top to dark grey below.
  GradientFillSymbol();
  GradientFillSymbol(GradientFillSymbol const&);
  GradientFillSymbol& operator=(GradientFillSymbol const&);
  ~GradientFillSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;

  struct Gradient {
    GradientShape shape = GradientShape::Linear;

    /// Of a linear one: where it runs to, in degrees counterclockwise from the right. It begins and ends at the corners
    /// of the rectangle that lie farthest that way. A radial one runs from the middle as far as half the longer side.
    double angle = -90;

    QVector<GradientStop> stops;  ///< by ascending position
  };
  Gradient const& gradient() const { return gradient_; }
  void setGradient(Gradient const& gradient) { gradient_ = gradient; }

private:
  std::unique_ptr<Filling> filling(double pixelsPerPoint) const override;

  Gradient gradient_;
};

}  // namespace SysDisplay
