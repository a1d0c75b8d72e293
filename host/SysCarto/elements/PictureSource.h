#pragma once

#include <QImage>
#include <QString>

#include <memory>

class QImageReader;
class QPainter;
class QSvgRenderer;

namespace SysCarto {

/// A picture file: read when it is first needed, checked before it is decoded.
class PictureSource {
public:
  explicit PictureSource(QString path);
  ~PictureSource();

  QString const& path() const { return path_; }

  /// Reads the file anew when it is next asked for.
  void forget();

  /// Why the picture can't be drawn, as a sentence; empty where it can.
  QString const& problem();

  /// Draws the picture into whole pixels, so that it comes out the same whatever part of it the painter reaches.
  void draw(QPainter& painter, QRect const& targetPx);

private:
  QString load();
  QString loadSvg();
  QString loadImage(QImageReader& reader);
  void drawCells(QPainter& painter, QRect const& targetPx);
  QImage cell(QRect const& part, QSize const& targetSize);

  QString const path_;
  bool isLoaded_ = false;
  QString problem_;
  QImage image_;
  QImage reduced_;  // to the size last asked for
  std::unique_ptr<QSvgRenderer> svg_;
};

}  // namespace SysCarto
