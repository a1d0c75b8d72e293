#pragma once

#include "host/SysCarto/document/ElementFields.h"
#include "host/SysCarto/layout/PageLayoutHost.h"

#include <SysCarto/PageLayout.h>

#include <QList>
#include <QRectF>

class QPainter;

/// Where a person works: the elements of the page, or the members of the group that is open.
SysCarto::ElementContainer& workplace(SysCarto::PageLayout const& layout);

/// About all of them; null without any.
QRectF areaOf(IElementContainer const& elements);

/// The selected elements that a person may move: all but locked and hidden ones, first selected first.
QList<SysUtility::_ptr_t<SysCarto::Element>> movableSelection(SysCarto::PageLayout const& layout);

/// Whether a person can select the element on the page, with the mouse or a key: it is neither locked nor hidden.
bool isInReach(SysCarto::Element const& element);

/// A handle of the rectangle about the selection: which sides it moves, −1 the left or bottom one, 1 the right or top
/// one, 0 none; or the one by which the selection is turned.
struct Handle {
  int x = 0;
  int y = 0;
  bool turns = false;
  bool isNone() const { return x == 0 && y == 0 && !turns; }
};

/// The frames about the selected elements of a page, and the eight handles by which they are resized; above them one
/// more where all can be turned.
class SelectionHandles {
public:
  explicit SelectionHandles(SysCarto::PageLayout const& layout);

  /// About all selected elements, in page centimetres with y upwards; null where none is selected.
  QRectF boundsCm() const { return boundsCm_; }

  /// The handle at a pixel of the view; none where nothing there can be resized.
  Handle at(QPoint const& pixel) const;
  void paint(QPainter& painter) const;

private:
  QRectF place(Handle const& handle) const;
  bool isShown(Handle const& handle) const;

  QRectF boundsCm_;
  QRectF boundsPx_;
  QVector<QRectF> framesPx_;
  bool canTurn_ = true;
};
