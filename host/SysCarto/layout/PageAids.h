#pragma once

#include <QVector>

#include <tuple>

namespace SysCarto {

/// What helps to arrange a page and is not printed. Page centimetres.
struct PageAids {
  double left = 0, right = 0, top = 0, bottom = 0;   ///< margins, from the edges of the page inwards
  QVector<double> verticalGuides, horizontalGuides;  ///< x of the ones, y of the others
  double grid = 0;                                   ///< the distance of its lines from each other; 0 for none

  bool operator==(PageAids const& o) const {
    auto const all = [](PageAids const& aids) {
      return std::tie(aids.left, aids.right, aids.top, aids.bottom, aids.verticalGuides, aids.horizontalGuides,
                      aids.grid);
    };
    return all(*this) == all(o);
  }
};

}  // namespace SysCarto
