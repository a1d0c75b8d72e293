#pragma once

#include <SysCarto/MapSurround.h>

namespace SysCarto {

struct SYSCARTO_EXPORT MapSurroundHost {
  /// The rectangle of the frame in page centimetres; told by the frame.
  static void setRectangle(MapSurround& surround, SysGeometry::Envelope const& rectangle);

  /// As the surround's own function.
  static QString problem(MapSurround const& surround);
};

}  // namespace SysCarto
