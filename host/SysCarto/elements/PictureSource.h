#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

#include <memory>

class QIODevice;
class QPainter;
class QSvgRenderer;
namespace SysDisplay {
class VectorCanvas;
}

namespace SysCarto {

/// A picture, in a file or embedded: read when it is first needed, checked before it is decoded.
class PictureSource {
public:
  /// `data` is a picture's data URI (`EmbeddedPicture.h`); where it is empty, the picture is in the file.
  explicit PictureSource(QString path, QString data = {});
  ~PictureSource();

  QString const& path() const { return path_; }
  QString const& data() const { return data_; }

  /// Reads the picture anew when it is next asked for.
  void forget();

  /// Why the picture can't be drawn, as a sentence; empty where it can.
  QString const& problem();

  /// Draws the picture into whole pixels, turned counterclockwise about their middle, so that it comes out the same
  /// whatever part of it the painter reaches.
  void draw(QPainter& painter, QRect const& targetPx, double angleDegrees);

private:
  QString load();
  QString load(QIODevice& file, QString const& name);
  QString loadSvg(QIODevice& file, QString const& name);
  QString loadImage(QIODevice& file, QString const& name);
  QString key() const;
  QImage image();
  void drawPart(QPainter& painter, QRectF const& part, QSize const& targetSize);
  bool reduces(QSize const& targetSize) const;
  void drawOn(SysDisplay::VectorCanvas& canvas, QPainter& painter, QRect const& targetPx, QTransform const& turn);
  QByteArray jpeg() const;
  QImage reducedTo(QSize const& targetSize);
  void drawCells(QPainter& painter, QRect const& targetPx, QTransform const& turn);
  QImage cell(QRect const& part, QSize const& targetSize, QTransform const& turn);

  QString const path_;
  QString const data_;
  bool isLoaded_ = false;
  QString problem_;
  QString key_;  // of the image
  std::shared_ptr<QImage const> image_;
  QSize size_;                // of the image, which may have been let go of
  bool isPlainJpeg_ = false;  // the file holds the picture as it is shown
  std::unique_ptr<QSvgRenderer> svg_;
  int svgBytes_ = 0;
};

}  // namespace SysCarto
