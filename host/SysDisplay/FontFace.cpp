#include "FontFace.h"

#include <map>

namespace SysDisplay {

namespace {

using Blob = std::unique_ptr<hb_blob_t, Destroyer<hb_blob_destroy>>;

// The tables that HarfBuzz has been given: it reads some after it has let go of them.
struct Tables {
  QRawFont font;
  std::map<hb_tag_t, Blob> given;
};

hb_blob_t* tableOf(hb_face_t*, hb_tag_t tag, void* data) {
  auto& tables = *static_cast<Tables*>(data);
  Blob& blob = tables.given[tag];
  if (!blob) {
    char name[5] = {};
    hb_tag_to_string(tag, name);
    QByteArray const table = tables.font.fontTable(name);
    blob.reset(hb_blob_create(table.constData(), static_cast<unsigned>(table.size()), HB_MEMORY_MODE_DUPLICATE, nullptr,
                              nullptr));
  }
  return hb_blob_reference(blob.get());
}

}  // namespace

FontFace faceOf(QRawFont const& font) {
  return FontFace(
      hb_face_create_for_tables(tableOf, new Tables{font, {}}, [](void* data) { delete static_cast<Tables*>(data); }));
}

}  // namespace SysDisplay
