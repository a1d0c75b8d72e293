#pragma once

#include <QColor>
#include <QVector>
#include <QWidget>

#include <vector>

/// How numbers are spread over their range, in the colours of the classes that they are in. The lines between classes
/// are dragged. Heights are square roots of counts, so that rare numbers are seen beside frequent ones.
class BreakHistogram final : public QWidget {
  Q_OBJECT

public:
  explicit BreakHistogram(QWidget* parent = nullptr);

  /// Ascending.
  void setValues(std::vector<double> const& sorted);

  /// The bounds of classes, one more than there are colours.
  void setClasses(std::vector<double> const& bounds, QVector<QColor> const& colors);

  QSize sizeHint() const override;

signals:
  /// The bound between two classes goes elsewhere, to a round number near the mouse.
  void moved(int bound, double value);

protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

private:
  QRectF area() const;
  double toX(double value) const;
  double toValue(double x) const;
  int boundAt(double x) const;
  QColor colorOf(double value) const;

  std::vector<double> sorted_, bounds_;
  QVector<QColor> colors_;
  double first_ = 0, last_ = 1;  // of the axis
  int dragged_ = -1;
};
