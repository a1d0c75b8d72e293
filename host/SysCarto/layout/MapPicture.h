#pragma once

#include <SysCarto/IElementContainer.h>
#include <SysCarto/MapFrameElement.h>

#include <QImage>

namespace SysCarto {

/// The map of a data frame, drawn on transparent ground: the part that lies in `areaPx`.
struct MapPicture {
  QImage image;  ///< null where no part of the frame lies in the area
  QPoint place;  ///< of its upper left corner, in device pixels
};
SYSCARTO_EXPORT MapPicture drawMap(MapFrameElement const& frame,
                                   SysDisplay::DisplayTransformation const& transformation, QRect const& areaPx,
                                   SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel);

/// Draws elements of the map over a picture that `drawMap` has made of the same frame, with the same transformation and
/// area.
SYSCARTO_EXPORT void drawOverMap(MapPicture& picture, IElementContainer& elements, MapFrameElement const& frame,
                                 SysDisplay::DisplayTransformation const& transformation);

/// The labels of a data frame's map, as an export at that resolution places them. No container holds them.
SYSCARTO_EXPORT QList<SysUtility::_ptr_t<Element>> placeLabels(MapFrameElement const& frame, double dpi);

}  // namespace SysCarto
