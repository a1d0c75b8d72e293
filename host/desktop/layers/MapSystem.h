#pragma once

#include "host/SysAdapterUI/SystemChooser.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapDocument.h>

/// What the choice of a coordinate system starts from: those that the document has, and what the map shows, where there
/// is one. For a layer, an empty definition means that of its file.
SysAdapterUI::SystemChoice systemChoice(SysCarto::MapDocument const& document, SysCarto::Map const* map,
                                        QString const& now, bool isOfLayer);

/// Lets a person choose the coordinate system of a map, which is one step of the history. Answers what is to be told of
/// it, or an empty text.
QString chooseMapSystem(SysCarto::MapDocument const& document, SysUtility::_ptr_t<SysCarto::Map> const& map,
                        QWidget* parent);
