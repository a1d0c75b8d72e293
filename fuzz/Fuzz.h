#pragma once

#include <SysDisplay/DisplayTransformation.h>
#include <SysGeometry/Envelope.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cstdint>
#include <cstdlib>

// What the targets have in common.
namespace fuzz {

/// The application that a target needs, without a display. It goes with the process: what Qt keeps may be gone before.
inline void start(int& argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static auto* const application = new QApplication(argc, argv);
  Q_UNUSED(application)
}

/// Stops the fuzzer: what holds always did not.
inline void require(bool holds) {
  if (!holds) std::abort();
}

/// Lets `draw` draw into a square world as many units wide as the picture has pixels.
template <class Draw>
void onCanvas(int sizePx, Draw const& draw) {
  QImage image(sizePx, sizePx, QImage::Format_RGBA8888_Premultiplied);
  image.fill(Qt::white);
  auto const transformation = SysUtility::make<SysDisplay::DisplayTransformation>();
  transformation->SetDeviceFrame(image.rect());
  transformation->SetVisibleBounds(SysUtility::make<SysGeometry::Envelope>(0.0, 0.0, sizePx * 1.0, sizePx * 1.0));
  QPainter painter(&image);
  draw(painter, transformation);
}

}  // namespace fuzz
