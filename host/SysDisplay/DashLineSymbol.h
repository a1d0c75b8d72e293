#pragma once

#include "host/SysDisplay/PathDrawing.h"

#include <QVector>

namespace SysDisplay {

/// A line with dashes of any lengths.
class SYSDISPLAY_EXPORT DashLineSymbol final : public PreparableLine {
public:
  DashLineSymbol();
  DashLineSymbol(DashLineSymbol const&);
  DashLineSymbol& operator=(DashLineSymbol const&);
  ~DashLineSymbol() override;

  SysUtility::_ptr_t<Symbol> Clone() const override;
  std::unique_ptr<PathDrawing> prepare(DrawTarget& target) const override;
  SysUtility::_ptr_t<SysGeometry::Envelope> QueryBoundary(
      SysUtility::_ptr_t<DisplayTransformation> const& transformation,
      SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry) const override;
  void resize(double factor) override;

  // Points: what a length may be.
  static constexpr double minLength = 0.01, maxLength = 1000;

  /// Points: dash and gap in turn, without their caps. An odd count is run through twice, so that its dashes become
  /// gaps. Lengths that are not positive, and none at all, draw a solid line.
  QVector<double> const& pattern() const { return pattern_; }
  void setPattern(QVector<double> const& points) { pattern_ = points; }

  /// How far into the pattern the line begins, in points.
  double start() const { return start_; }
  void setStart(double points) { start_ = points; }

private:
  QVector<double> pattern_{4, 2};
  double start_ = 0;
};

}  // namespace SysDisplay
