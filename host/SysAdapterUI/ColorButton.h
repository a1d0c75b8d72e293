#pragma once

#include <QColor>
#include <QPixmap>
#include <QPushButton>

namespace SysAdapterUI {

/// A sample of a colour in a frame; one that shines through lies on a pattern.
QPixmap colorIcon(QColor const& color, QColor const& frame, QSize const& size = {16, 16});

/// A button that shows a colour and, when clicked, lets a person choose another one.
class ColorButton : public QPushButton {
  Q_OBJECT

public:
  explicit ColorButton(QWidget* parent = nullptr);
  ~ColorButton() override;

  QColor color() const { return color_; }
  void setColor(QColor const& color);

signals:
  /// The person has chosen another colour.
  void colorChosen(QColor const& color);

private:
  void choose();

  QColor color_;
};

}  // namespace SysAdapterUI
