#pragma once

#include <SysDisplay/Export.h>

#include <QRawFont>

#include <hb.h>

#include <memory>

namespace SysDisplay {

/// Ends an object of HarfBuzz's by its own function.
template <auto destroy>
struct Destroyer {
  template <class Object>
  void operator()(Object* object) const {
    destroy(object);
  }
};
using FontFace = std::unique_ptr<hb_face_t, Destroyer<hb_face_destroy>>;

/// A font's tables as HarfBuzz reads them.
SYSDISPLAY_EXPORT FontFace faceOf(QRawFont const& font);

}  // namespace SysDisplay
