// Any bytes are a style library whose symbols are then drawn, or answer a sentence.

#include "MemoryFile.h"

#include <SysAdapterUI/StyleGalleryClass.h>
#include <SysDisplay/Symbol.h>
#include <SysGeometry/Envelope.h>
#include <SysGeometry/Point.h>
#include <SysGeometry/Polyline.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cstdlib>

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
  QImage image(samplePx, samplePx, QImage::Format_RGBA8888_Premultiplied);
  auto const transformation = make<SysDisplay::DisplayTransformation>();
  transformation->SetDeviceFrame(image.rect());
  transformation->SetVisibleBounds(make<SysGeometry::Envelope>(0.0, 0.0, samplePx * 1.0, samplePx * 1.0));
  QPainter painter(&image);
  symbol.Draw(painter, transformation, geometryFor(symbol.GetType()));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static QApplication application(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  static MemoryFile const file;
  if (!file.hold(bytes, size)) std::abort();
  SysAdapterUI::StyleGalleryClass gallery;
  QStringList categories;
  QVector<_ptr_t<SysDisplay::StyleGalleryItem>> items;
  bool const opened = gallery.GetCategorys(file.path(), QString(), categories);
  if (opened != gallery.lastError().isEmpty()) std::abort();
  for (QString const& category : qAsConst(categories)) gallery.GetItems(file.path(), category, QString(), items);
  for (auto const& item : qAsConst(items)) drawSample(*SysUtility::ptr_cast<SysDisplay::Symbol>(item->GetItem()));
  return 0;
}
