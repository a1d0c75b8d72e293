#include "Icons.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace {

QColor colourOf(QIcon::Mode mode) {
  auto const group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
  auto const role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
  return QApplication::palette().color(group, role);
}

// The drawing says "currentColor" wherever it has ink.
class InkEngine final : public QIconEngine {
public:
  explicit InkEngine(QByteArray drawing) : drawing_(std::move(drawing)) {}

  void paint(QPainter* painter, QRect const& place, QIcon::Mode mode, QIcon::State) override {
    QByteArray drawing = drawing_;
    QSvgRenderer(drawing.replace("currentColor", colourOf(mode).name().toLatin1())).render(painter, QRectF(place));
  }

  QPixmap pixmap(QSize const& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new InkEngine(*this); }

private:
  QByteArray const drawing_;
};

}  // namespace

QIcon loadIcon(QString const& name) {
  QFile file(QStringLiteral(":/desktop/icons/%1.svg").arg(name));
  return file.open(QIODevice::ReadOnly) ? QIcon(new InkEngine(file.readAll())) : QIcon();
}
