#pragma once

#include "host/SysCarto/maps/ActiveViewHost.h"

#include <SysCarto/ActiveView.h>
#include <SysCarto/Map.h>

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

class FeatureHighlight;

/// The screen of a view: keeps the view's picture, and shows over it what tools draw. What a picture is made of, and
/// whether it still grows, is for the derived classes to say.
class ViewWidget : public QWidget, public SysCarto::ViewSurface {
  Q_OBJECT

public:
  ~ViewWidget() override;

  void beginTracker() override;
  void endTracker() override;
  void trackerOffset(double dx, double dy) override;
  void trackerShape(SysDisplay::Symbol const& symbol, SysUtility::_ptr_t<SysGeometry::Geometry> const& geometry,
                    SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation) override;
  void trackerText(QString const& text, QPointF const& placePx) override;
  void refresh(int phase) override;
  void clearOverlay() override;
  void setCursor(QCursor const& cursor) override;

  /// Whether the picture shows everything; maps that take long grow into it.
  virtual bool isComplete() const = 0;

  /// There are more features than when something was drawn without them.
  virtual void takeNews() = 0;

  /// The maps that are shown, the topmost last, and the rectangles that they fill, in the widget's pixels.
  struct ShownMap {
    SysUtility::_ptr_t<SysCarto::Map> map;
    QRectF placePx;
  };
  virtual QVector<ShownMap> shownMaps() const = 0;

  /// Whose features are marked over the maps; borrowed.
  void setHighlight(FeatureHighlight const& highlight) { highlight_ = &highlight; }

  /// While it is paused, maps don't grow into the picture.
  void setPaused(bool isPaused);

  /// The time that a growing picture takes before events are handled again.
  static constexpr int sliceMs = 12;

signals:
  /// The view was asked to redraw, or a person has done something in it: states that depend on it may have changed.
  void viewChanged();

  /// A button of the mouse goes down for the current tool.
  void pressed();

  /// The mouse is at this place, in pixels.
  void pointed(QPoint const& positionPx);
  void left();

protected:
  explicit ViewWidget(QWidget* parent);

  /// Makes the picture anew, for the widget's size and its device pixel ratio.
  virtual void composePicture() = 0;

  /// Goes on with a picture that was not complete. Answers whether it looks otherwise now.
  virtual bool continuePicture() = 0;

  /// Whether it can go on now; what waits for features does so once these are there.
  virtual bool canGoOn() const = 0;
  virtual QImage const& picture() const = 0;

  /// Where the picture belongs in the widget, which may have moved on since it was composed.
  virtual QRectF placeOfPicture() const;

  /// Composes the picture when nobody has asked for it again for a moment. Until then the one there is stands in.
  void composeAtRest();

  /// By how much a turn of the wheel enlarges.
  static double zoomOf(QWheelEvent const& event);
  static constexpr double wheelStep = 120;  // of an ordinary wheel, in eighths of a degree

  /// Lets a picture that is not complete grow.
  void goOn();
  bool isStale() const { return isStale_; }

  /// Painted over the picture, below what tools draw.
  virtual void paintAids(QPainter& painter);

  /// Painted over the picture while no tool has drawn anything.
  virtual void paintOver(QPainter& painter);
  bool hasOverlay() const { return !shapes_.empty() || !offset_.isNull(); }

  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

private:
  void compose();

  struct Shape {
    SysUtility::_ptr_t<SysDisplay::Symbol> symbol;
    SysUtility::_ptr_t<SysGeometry::Geometry> geometry;
    SysUtility::_ptr_t<SysDisplay::DisplayTransformation> transformation;
  };

  struct Text {
    QString words;
    QPointF placePx;
  };

  void paintText(QPainter& painter, Text const& text) const;

  FeatureHighlight const* highlight_ = nullptr;
  std::vector<Shape> shapes_;
  std::vector<Text> texts_;
  QPointF offset_;
  bool isStale_ = true;
  bool isPaused_ = false;
  QTimer slices_;
  QTimer rest_;
};
