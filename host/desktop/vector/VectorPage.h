#pragma once

#include "PdfFile.h"

#include <SysCarto/PageLayout.h>
#include <SysUI/TrackerCancel.h>

/// A page of a layout, or an area of it, as a vector canvas has it: the same pixels as its image at a resolution, and
/// all that lies in them as shapes.
class VectorPage {
public:
  /// `layout` has a page. The area is in centimetres from the page's upper left corner, y downwards, and may reach
  /// beyond it; an empty one is the page.
  VectorPage(SysUtility::_ptr_t<SysCarto::PageLayout> layout, int dpi, QRectF const& areaCm = QRectF());

  QSize size() const { return size_; }  ///< in pixels
  QSizeF sizePt() const;                ///< on paper, in points
  int dpi() const { return dpi_; }

  /// Draws the page, from the ground up. Its background covers what the area has beyond it, too. Labels are placed as
  /// those of an image at that resolution.
  void draw(SysDisplay::VectorCanvas& canvas, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  /// The data frames whose maps have a coordinate system that is known, and have their middle on the globe.
  std::vector<GeoreferencedFrame> frames() const;

private:
  void drawElement(QPainter& painter, SysUtility::_ptr_t<SysCarto::Element> const& element,
                   SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  int dpi_;
  QRectF areaCm_;
  QSize size_;
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> transformation_;
};
