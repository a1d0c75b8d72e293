#pragma once

#include "PdfFile.h"

#include <SysCarto/PageLayout.h>
#include <SysUI/TrackerCancel.h>

/// A page of a layout as a vector canvas has it: the same pixels as its image at a resolution, and all that lies in
/// them as shapes.
class VectorPage {
public:
  /// `layout` has a page.
  VectorPage(SysUtility::_ptr_t<SysCarto::PageLayout> layout, int dpi);

  QSize size() const { return size_; }  ///< in pixels
  QSizeF sizePt() const;                ///< of the paper, in points
  int dpi() const { return dpi_; }

  /// Draws the page, from the ground up. Labels are placed as those of an image at that resolution.
  void draw(SysDisplay::VectorCanvas& canvas, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  /// The data frames whose maps have a coordinate system that is known, and lie on the globe with all corners.
  std::vector<GeoreferencedFrame> frames() const;

private:
  void drawElement(QPainter& painter, SysUtility::_ptr_t<SysCarto::Element> const& element,
                   SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) const;

  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  int dpi_;
  QSize size_;
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> transformation_;
};
