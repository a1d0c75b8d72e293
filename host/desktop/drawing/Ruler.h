#pragma once

#include "Guides.h"

#include <QWidget>

#include <memory>

/// A ruler along an edge of the page layout's view, in centimetres from the page's lower left corner. It shows where
/// the mouse is; a guide is pulled out of it.
class Ruler final : public QWidget {
  Q_OBJECT

public:
  /// The views are borrowed and outlive the ruler.
  Ruler(Qt::Orientation orientation, DocumentViews& views, QWidget* parent);
  ~Ruler() override;

  QSize sizeHint() const override;

protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;

private:
  void paintTicks(QPainter& painter, QTransform const& toDevice) const;
  void followMouse(QMouseEvent const& event);
  void endGesture(bool isTaken);

  Qt::Orientation const orientation_;
  DocumentViews& views_;
  std::optional<int> mousePx_;
  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;  // of the gesture, as long as there is one
  std::unique_ptr<GuideGesture> gesture_;
};
