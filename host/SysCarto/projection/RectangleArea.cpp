#include "RectangleArea.h"

#include <utility>

namespace SysCarto {

OGRPolygon areaOf(SysGeometry::Box const& box) {
  OGRLinearRing ring;
  for (auto const& [x, y] : {std::pair(box.xmin, box.ymin),
                             {box.xmax, box.ymin},
                             {box.xmax, box.ymax},
                             {box.xmin, box.ymax},
                             {box.xmin, box.ymin}})
    ring.addPoint(x, y);
  OGRPolygon area;
  area.addRing(&ring);
  return area;
}

}  // namespace SysCarto
