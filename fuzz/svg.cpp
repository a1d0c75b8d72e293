// Any bytes are an SVG that is then drawn, as a picture, as a marker and as a fill, or answer a sentence.

#include "Fuzz.h"

#include "host/SysCarto/elements/EmbeddedPicture.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysDisplay/PictureFillSymbol.h"
#include "host/SysDisplay/SvgMarkerSymbol.h"

#include <SysGeometry/Point.h>

using SysUtility::make;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  fuzz::start(*argc, *argv);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
  QByteArray const svg(reinterpret_cast<char const*>(bytes), static_cast<int>(size));
  QString problem;
  auto const picture = SysDisplay::SvgPicture::of(svg, problem);
  fuzz::require((picture != nullptr) == problem.isEmpty());
  if (!picture) return 0;
  SysDisplay::SvgMarkerSymbol marker;
  marker.setPicture(picture);
  SysDisplay::PictureFillSymbol fill;
  fill.setPicture(picture);
  SysCarto::PictureElement element;
  element.setSource(QString(), SysCarto::embeddedPicture(svg));
  element.SetGeometry(make<SysGeometry::Envelope>(4.0, 4.0, 60.0, 40.0));
  element.setAngle(30);
  fuzz::onCanvas(64, [&](QPainter& painter, auto const& transformation) {
    marker.Draw(painter, transformation, make<SysGeometry::Point>(32.0, 32.0, 0.0));
    fill.Draw(painter, transformation, make<SysGeometry::Envelope>(2.0, 2.0, 62.0, 62.0));
    element.Draw(painter, transformation, nullptr);
  });
  return 0;
}
