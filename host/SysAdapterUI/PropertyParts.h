#pragma once

#include "host/SysUtility/Fields.h"

#include <QJsonArray>

namespace SysAdapterUI {

/// What a row of a property sheet stands for: a field, or a part of one: a side or a coordinate, or from where a
/// rectangle is measured.
enum class PropertyPart { Field, X, Y, Width, Height, Anchor };

/// Source texts of the translation context "SysAdapterUI::PropertyModel".
struct PartText {
  PropertyPart part;
  char const* caption;
  char const* help;
};
PartText const& textOf(PropertyPart part);

/// The nine places of a rectangle from which it can be measured, row by row from the upper left; their captions are of
/// the same context.
SysUtility::Choices anchorChoices();

// Of a point, or of a rectangle as a document has it: xmin, ymin, xmax, ymax. Of a rectangle, x and y are those of the
// anchor, which stays where it is when the size changes.

double partOf(QJsonArray const& numbers, PropertyPart part, int anchor);
QJsonArray withPart(QJsonArray numbers, PropertyPart part, double value, int anchor);

}  // namespace SysAdapterUI
