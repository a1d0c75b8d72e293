#pragma once

#include <SysCarto/MapDocument.h>

#include <QColor>

/// What the symbols of the focus map lie on: the background of its data frame, white where it has none.
QColor groundOfFocusMap(SysCarto::MapDocument const& document);
