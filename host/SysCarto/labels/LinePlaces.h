#pragma once

#include "host/SysCarto/labels/LabelIndex.h"
#include "host/SysDisplay/TextSymbol.h"

#include <QPointF>

#include <vector>

namespace SysCarto {

/// A line that is measured from its beginning.
class MeasuredLine {
public:
  explicit MeasuredLine(std::vector<QPointF> line);

  double length() const { return at_.empty() ? 0 : at_.back(); }
  QPointF place(double along) const;

  /// How far its vertices between two places lie off the chord a–b.
  double bend(double from, double to, QPointF const& a, QPointF const& b) const;

private:
  std::vector<QPointF> line_;
  std::vector<double> at_;
};

/// A straight enough stretch of a line.
struct Stretch {
  QPointF middle;
  double angle;  ///< degrees, within ±90, so that a text along it is upright
  double bend;   ///< how far the line leaves the stretch to either side
};

/// The stretches of a line on which a text of that size can lie, nearest to the line's middle first.
std::vector<Stretch> straightStretches(MeasuredLine const& line, double width, double height);

/// Places on a line, about that far from each other, nearest to the line's middle first.
std::vector<QPointF> spotsOn(MeasuredLine const& line, double apart);

/// A piece of a text that keeps its shape on a bent line: a letter with its accents.
struct Letter {
  QString text;
  double along;  ///< its middle, from that of the text
  double width;
  int number;  ///< among the letters and blanks of the text
};

/// The letters of a text, without its blanks; none where they can't be parted, as in scripts that join letters or run
/// to the left.
std::vector<Letter> lettersOf(QString const& text, SysDisplay::TextSymbol const& symbol);

struct PlacedLetter {
  QPointF centre;
  double angle;  ///< degrees
};

/// Ways to lay letters along a line, `lift` above it, nearest to the line's middle first. They stand upright as a
/// whole, and the line bends nowhere so much that letters would run into each other.
std::vector<std::vector<PlacedLetter>> curvedPlaces(MeasuredLine const& line, std::vector<Letter> const& letters,
                                                    double width, double height, double lift);

}  // namespace SysCarto
