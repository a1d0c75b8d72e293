#pragma once

#include "PageGesture.h"

class DocumentViews;
class QPainter;

/// A guide of the page: its direction and its number among those, −1 for one that is new.
struct Guide {
  Qt::Orientation orientation;
  int index;
};

/// The guide at a pixel of the view.
std::optional<Guide> guideAt(SysCarto::PageLayout const& layout, QPoint const& pixel);

/// Paints what helps to arrange the page and is not printed: its grid, margins and guides.
void paintAids(QPainter& painter, SysCarto::PageLayout const& layout, QSize const& viewPx);

/// Pulls a guide to a place, or off the page, which removes it.
class GuideGesture final : public PageGesture {
public:
  /// The views are borrowed and outlive the gesture.
  GuideGesture(DocumentViews& views, SysCarto::PageLayout& layout, QPointF const& press, Guide const& guide);

protected:
  Outlines outlines() const override;
  void commit() override;
  Snapper::Result snapped(QPointF const& point) const override;
  QString numbers() const override;
  SysCarto::PageAids aids() const override;

private:
  double place() const;
  bool isOnPage() const;

  DocumentViews& views_;
  Guide const guide_;
};
