// Any bytes are a style library whose symbols are then drawn, or answer a sentence.

#include "Fuzz.h"
#include "MemoryFile.h"

#include <SysAdapterUI/StyleGalleryClass.h>
#include <SysDisplay/Symbol.h>
#include <SysGeometry/Point.h>
#include <SysGeometry/Polyline.h>

namespace {

using SysUtility::_ptr_t;
using SysUtility::make;

constexpr int samplePx = 32;

_ptr_t<SysGeometry::Geometry> geometryFor(SysDisplay::SymbolType type) {
  if (type == SysDisplay::SymbolType::Marker) return make<SysGeometry::Point>(16.0, 16.0, 0.0);
  if (type == SysDisplay::SymbolType::Line)
    return make<SysGeometry::Polyline>(QVector<QPointF>{{2, 2}, {16, 28}, {30, 5}});
  return make<SysGeometry::Envelope>(2.0, 2.0, 30.0, 30.0);
}

void drawSample(SysDisplay::Symbol const& symbol) {
  fuzz::onCanvas(samplePx, [&](QPainter& painter, auto const& transformation) {
    symbol.Draw(painter, transformation, geometryFor(symbol.GetType()));
  });
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  fuzz::start(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  static MemoryFile const file;
  fuzz::require(file.hold(bytes, size));
  SysAdapterUI::StyleGalleryClass gallery;
  QStringList categories;
  QVector<_ptr_t<SysDisplay::StyleGalleryItem>> items;
  bool const opened = gallery.GetCategorys(file.path(), QString(), categories);
  fuzz::require(opened == gallery.lastError().isEmpty());
  for (QString const& category : qAsConst(categories)) gallery.GetItems(file.path(), category, QString(), items);
  for (auto const& item : qAsConst(items)) drawSample(*SysUtility::ptr_cast<SysDisplay::Symbol>(item->GetItem()));
  return 0;
}
