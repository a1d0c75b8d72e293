#pragma once

namespace SysDisplay {

constexpr double cmPerInch = 2.54;
constexpr double pointsPerInch = 72;

/// Device pixels on an inch of the page at page scale 1.
constexpr double pixelsPerInch = 96;

constexpr double cmPerPoint = cmPerInch / pointsPerInch;

/// At page scale 1.
constexpr double pixelsPerPoint = pixelsPerInch / pointsPerInch;
constexpr double pixelsPerCm = pixelsPerInch / cmPerInch;

}  // namespace SysDisplay
