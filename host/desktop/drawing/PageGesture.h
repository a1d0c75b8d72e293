#pragma once

#include "SelectionHandles.h"
#include "Snapper.h"

#include <SysCarto/PageLayout.h>

#include <QPointF>
#include <QString>

#include <functional>
#include <memory>

/// The place on the page under a pixel of the view, in centimetres, with the decimals that a pixel can tell.
QPointF pagePoint(SysCarto::PageLayout const& layout, QPoint const& pixel);

/// A length in centimetres, as people read it while it changes.
QString inCm(double length);

/// What happens on a page between the press of a mouse button and its release. The gesture owns the course: it shows in
/// an overlay what would become, and changes the document once, at its end, as one step of undo. What a drag means is
/// for the derived classes to say. The mouse is drawn to lines of the page, but with Alt it is not. Points are page
/// centimetres.
class PageGesture {
public:
  virtual ~PageGesture();
  PageGesture(PageGesture const&) = delete;
  PageGesture& operator=(PageGesture const&) = delete;

  /// Where the mouse is now. A drag begins once it has left the place of the press.
  void moveTo(QPointF const& point, Qt::KeyboardModifiers modifiers);

  /// Ends the gesture: changes what was shown, or nothing where nothing was dragged.
  void finish();

  /// Takes the overlay away and changes nothing.
  void cancel();
  bool hasMoved() const { return hasMoved_; }

  /// Whether margins, guides and the grid draw the mouse to them; asked before the first move.
  void setUsesAids(bool uses) { usesAids_ = uses; }

protected:
  PageGesture(SysCarto::PageLayout& layout, QPointF const& press);

  SysCarto::PageLayout& layout() const { return layout_; }
  QPointF press() const { return press_; }
  QPointF point() const { return point_; }
  Qt::KeyboardModifiers modifiers() const { return modifiers_; }

  /// What shows in the overlay what the release would do.
  using Outlines = QVector<SysUtility::_ptr_t<SysGeometry::Geometry>>;
  virtual Outlines outlines() const = 0;
  virtual void commit() = 0;

  /// Where the mouse is drawn to from a point; nowhere, if the gesture does not say.
  virtual Snapper::Result snapped(QPointF const& point) const;

  /// What is shown beside the mouse; empty for nothing.
  virtual QString numbers() const;

  /// The lines of the page as it was at the press, without those of what is dragged.
  Snapper const& lines() const;
  double snapReachCm() const;

  /// The margins, guides and grid that draw the mouse to them.
  virtual SysCarto::PageAids aids() const;

  /// The elements that the gesture drags along.
  virtual QSet<SysCarto::ElementHandle> dragged() const { return {}; }

private:
  void showOverlay(QVector<QLineF> const& snapLines);

  SysCarto::PageLayout& layout_;
  QPointF const press_;
  mutable std::unique_ptr<Snapper> snapper_;
  QPointF point_;
  Qt::KeyboardModifiers modifiers_;
  bool hasMoved_ = false;
  bool usesAids_ = true;
};

/// Puts clones in the place of the selected elements that may be moved, as one step of undo, and redraws. `change` is
/// called with each clone, and answers whether it has changed; where none has, there is no step.
void changeSelection(SysCarto::PageLayout& layout, QString const& name,
                     std::function<bool(SysCarto::Element&)> const& change);

/// Moves the selected elements, in page centimetres, as far as they may go.
void moveSelection(SysCarto::PageLayout& layout, QString const& name, QPointF const& by);

/// The rectangles of the elements that may be moved; of many, the one about all.
QVector<QRectF> selectedRectangles(SysCarto::PageLayout const& layout);

/// The handles of the elements that may be moved.
QSet<SysCarto::ElementHandle> selectedHandles(SysCarto::PageLayout const& layout);

/// Moves the selection.
class MoveGesture final : public PageGesture {
public:
  MoveGesture(SysCarto::PageLayout& layout, QPointF const& press);

protected:
  Outlines outlines() const override;
  void commit() override;
  Snapper::Result snapped(QPointF const& point) const override;
  QString numbers() const override;
  QSet<SysCarto::ElementHandle> dragged() const override { return selectedHandles(layout()); }

private:
  QPointF offset() const { return point() - press(); }

  QRectF const bounds_;
};

/// Drags a handle of the selection, the opposite side staying where it is. Shift keeps the ratio of width and height,
/// and so does a selection of texts alone.
class ResizeGesture final : public PageGesture {
public:
  ResizeGesture(SysCarto::PageLayout& layout, QPointF const& press, Handle const& handle);

protected:
  Outlines outlines() const override;
  void commit() override;
  Snapper::Result snapped(QPointF const& point) const override;
  QString numbers() const override;
  QSet<SysCarto::ElementHandle> dragged() const override { return selectedHandles(layout()); }

private:
  struct Scaling {
    QPointF origin;
    double x = 1, y = 1;

    QPointF scaled(QPointF const& way) const { return {way.x() * x, way.y() * y}; }
    void apply(SysCarto::Element& element) const;
  };
  bool keepsRatio() const;
  Scaling scaling() const;

  Handle const handle_;
  QRectF const bounds_;
};

/// Selects what lies wholly in a rectangle; with Shift in addition to what is selected.
class RubberBandGesture final : public PageGesture {
public:
  RubberBandGesture(SysCarto::PageLayout& layout, QPointF const& press) : PageGesture(layout, press) {}

protected:
  Outlines outlines() const override;
  void commit() override;

private:
  QRectF band() const { return QRectF(press(), point()).normalized(); }
};
