#pragma once

#include <SysCarto/IElementContainer.h>
#include <SysCarto/MapFrameElement.h>

#include <QImage>
#include <QTransform>

#include <functional>

namespace SysCarto {

/// The map of a data frame, drawn on transparent ground: the part that lies in `areaPx`.
struct MapPicture {
  QImage image;  ///< null where no part of the frame lies in the area
  QPoint place;  ///< of its upper left corner, in device pixels
};
SYSCARTO_EXPORT MapPicture drawMap(MapFrameElement const& frame,
                                   SysDisplay::DisplayTransformation const& transformation, QRect const& areaPx,
                                   SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);

/// Draws the map of a data frame, and then elements of it, on the painter's vector canvas.
SYSCARTO_EXPORT void drawMapShapes(QPainter& painter, MapFrameElement const& frame,
                                   SysDisplay::DisplayTransformation const& transformation,
                                   QList<SysUtility::_ptr_t<Element>> const& labels,
                                   SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);

/// Draws elements of the map over a picture that `drawMap` has made of the same frame, with the same transformation and
/// area.
SYSCARTO_EXPORT void drawOverMap(MapPicture& picture, IElementContainer& elements, MapFrameElement const& frame,
                                 SysDisplay::DisplayTransformation const& transformation);

/// The pixels of a data frame, and the transformation by which its map is drawn into them, counted from their corner.
/// Empty where the frame lies beyond all pixels.
struct MapPixels {
  QRect frame;
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> transformation;
};
SYSCARTO_EXPORT MapPixels mapPixels(MapFrameElement const& frame,
                                    SysDisplay::DisplayTransformation const& transformation);

/// Lets something draw over the pixels of a data frame, with the transformation of its map. The painter's origin is
/// then the frame's corner, and the frame clips.
SYSCARTO_EXPORT void drawOnFrame(QPainter& painter, MapFrameElement const& frame,
                                 SysDisplay::DisplayTransformation const& transformation,
                                 std::function<void(SysDisplay::DisplayTransformation const&)> const& draw);

/// From the units of a data frame's map to centimetres of the page.
SYSCARTO_EXPORT QTransform mapToPage(MapFrameElement const& frame);

/// The labels of a data frame's map, as an export at that resolution places them, and where views of the map are to
/// show them, those that found no place. No container holds them.
SYSCARTO_EXPORT QList<SysUtility::_ptr_t<Element>> placeLabels(
    MapFrameElement const& frame, double dpi, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel = nullptr);

}  // namespace SysCarto
