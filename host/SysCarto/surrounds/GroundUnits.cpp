#include "GroundUnits.h"

#include <QRegularExpression>

#include <algorithm>

namespace SysCarto {

namespace {

struct PaperUnit {
  char const* name;
  double metres;
};
constexpr PaperUnit paperUnits[] = {{"cm", 0.01}, {"in", 0.0254}};

}  // namespace

std::vector<GroundUnit> const& groundUnits() {
  // clang-format off
  static std::vector<GroundUnit> const units = {
      {BarUnit::Metres,        "m",    "m",   1,             QT_TRANSLATE_NOOP("Fields", "Metres")},
      {BarUnit::Kilometres,    "km",   "km",  1000,          QT_TRANSLATE_NOOP("Fields", "Kilometres")},
      {BarUnit::Feet,          "ft",   "ft",  0.3048,        QT_TRANSLATE_NOOP("Fields", "Feet")},
      {BarUnit::Miles,         "mi",   "mi",  1609.344,      QT_TRANSLATE_NOOP("Fields", "Miles")},
      {BarUnit::NauticalMiles, "nmi",  "nmi", 1852,          QT_TRANSLATE_NOOP("Fields", "Nautical miles")},
      {BarUnit::Centimetres,   "cm",   "cm",  0.01,          QT_TRANSLATE_NOOP("Fields", "Centimetres")},
      {BarUnit::Yards,         "yd",   "yd",  0.9144,        QT_TRANSLATE_NOOP("Fields", "Yards")},
      {BarUnit::SurveyFeet,    "ftUS", "ft",  1200.0 / 3937, QT_TRANSLATE_NOOP("Fields", "US survey feet")},
  };
  // clang-format on
  return units;
}

GroundUnit const& groundUnit(BarUnit unit) {
  auto const& units = groundUnits();
  return *std::find_if(units.begin(), units.end(), [=](GroundUnit const& one) { return one.unit == unit; });
}

QVector<GroundPlace> groundPlaces(QString const& pattern) {
  static QRegularExpression const places(QStringLiteral("\\{([A-Za-z]+)/([A-Za-z]+)\\}"));
  QVector<GroundPlace> found;
  auto const& ground = groundUnits();
  for (auto match = places.globalMatch(pattern); match.hasNext();) {
    auto const one = match.next();
    auto const isNamed = [&](int part) {
      return [name = one.captured(part)](auto const& unit) { return name == QLatin1String(unit.name); };
    };
    auto const* const on = std::find_if(std::begin(paperUnits), std::end(paperUnits), isNamed(2));
    auto const of = std::find_if(ground.begin(), ground.end(), isNamed(1));
    bool const isKnown = on != std::end(paperUnits) && of != ground.end();
    found.push_back({one.capturedStart(), one.capturedLength(), one.captured(), isKnown ? on->metres / of->metres : 0});
  }
  return found;
}

}  // namespace SysCarto
