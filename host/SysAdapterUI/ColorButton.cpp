#include "ColorButton.h"

#include <QColorDialog>
#include <QPainter>

namespace SysAdapterUI {

QPixmap colorIcon(QColor const& color, QColor const& frame, QSize const& size) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::white);
  QPainter painter(&pixmap);
  if (color.alpha() < 255) painter.fillRect(pixmap.rect(), QBrush(Qt::gray, Qt::Dense4Pattern));
  painter.fillRect(pixmap.rect(), color);
  painter.setPen(frame);
  painter.drawRect(pixmap.rect().adjusted(0, 0, -1, -1));
  return pixmap;
}

ColorButton::ColorButton(QWidget* parent) : QPushButton(parent) {
  int const height = fontMetrics().height();
  setIconSize({2 * height, height});
  connect(this, &QPushButton::clicked, this, &ColorButton::choose);
}

ColorButton::~ColorButton() = default;

void ColorButton::setColor(QColor const& color) {
  color_ = color;
  QString const name = color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
  setIcon(colorIcon(color, palette().color(QPalette::Dark), iconSize()));
  setToolTip(name);
  setAccessibleDescription(name);
}

void ColorButton::choose() {
  QColor const chosen = QColorDialog::getColor(color_, this, tr("Choose Colour"), QColorDialog::ShowAlphaChannel);
  if (!chosen.isValid() || chosen == color_) return;
  setColor(chosen);
  emit colorChosen(chosen);
}

}  // namespace SysAdapterUI
