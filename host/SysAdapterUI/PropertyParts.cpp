#include "PropertyParts.h"

#include <QPointF>

#include <algorithm>
#include <iterator>

namespace SysAdapterUI {

using SysUtility::Choice;
using Part = PropertyPart;

namespace {

// clang-format off
constexpr Choice anchors[] = {
    {0, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Upper left")},
    {1, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Upper middle")},
    {2, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Upper right")},
    {3, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Middle left")},
    {4, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Middle")},
    {5, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Middle right")},
    {6, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Lower left")},
    {7, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Lower middle")},
    {8, "", QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Lower right")},
};
constexpr PartText parts[] = {
    {Part::X,      QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "X"),             QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "To the right.")},
    {Part::Y,      QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Y"),             QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Upwards.")},
    {Part::Width,  QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Width"),         QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "From the left side to the right one.")},
    {Part::Height, QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Height"),        QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "From the lower side to the upper one.")},
    {Part::Anchor, QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "Measured from"), QT_TRANSLATE_NOOP("SysAdapterUI::PropertyModel", "The place of the rectangle that X and Y tell of, and that stays where it is when the size changes.")},
};
// clang-format on

// Across and upwards, from 0 to 1.
QPointF placeOf(int anchor) { return {anchor % 3 / 2.0, 1 - anchor / 3 / 2.0}; }

}  // namespace

PartText const& textOf(Part part) {
  return *std::find_if(std::begin(parts), std::end(parts), [&](PartText const& text) { return text.part == part; });
}

SysUtility::Choices anchorChoices() { return anchors; }

double partOf(QJsonArray const& numbers, Part part, int anchor) {
  auto const at = [&](int i) { return numbers.at(i).toDouble(); };
  if (numbers.size() < 4) return at(part == Part::X ? 0 : 1);
  QPointF const place = placeOf(anchor);
  double const width = at(2) - at(0), height = at(3) - at(1);
  switch (part) {
    case Part::X: return at(0) + place.x() * width;
    case Part::Y: return at(1) + place.y() * height;
    case Part::Width: return width;
    default: return height;
  }
}

QJsonArray withPart(QJsonArray numbers, Part part, double value, int anchor) {
  bool const isAcross = part == Part::X || part == Part::Width;
  int const low = isAcross ? 0 : 1;
  if (numbers.size() < 4) {
    numbers[low] = value;
    return numbers;
  }
  double const from = numbers.at(low).toDouble(), to = numbers.at(low + 2).toDouble();
  if (part == Part::X || part == Part::Y) {
    // The side that is measured has the very value.
    double const share = isAcross ? placeOf(anchor).x() : placeOf(anchor).y(), length = to - from;
    numbers[low] = share == 1 ? value - length : value - share * length;
    numbers[low + 2] = share == 1 ? value : value + (1 - share) * length;
  } else {
    double const share = isAcross ? placeOf(anchor).x() : placeOf(anchor).y();
    double const fixed = from + share * (to - from);
    numbers[low] = fixed - share * value;
    numbers[low + 2] = fixed + (1 - share) * value;
  }
  return numbers;
}

}  // namespace SysAdapterUI
