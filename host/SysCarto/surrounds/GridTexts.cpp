#include "GridTexts.h"

#include "GroundUnits.h"
#include "Pieces.h"

#include "host/SysCarto/projection/CoordinateSystem.h"

#include <ogr_spatialref.h>

#include <QCoreApplication>
#include <QLocale>

#include <cmath>

namespace SysCarto {

namespace {

constexpr double sameUnit = 1e-9;

QString minus() { return QStringLiteral("−"); }

// A degree has so many of the smallest unit that is written, and that so many decimals at most.
struct Division {
  int perDegree;
  int decimals;
};

Division divisionOf(DegreeFormat format) {
  switch (format) {
    case DegreeFormat::Decimal: return {1, 6};
    case DegreeFormat::Minutes: return {60, 4};
    case DegreeFormat::Automatic:
    case DegreeFormat::Seconds: return {3600, 2};
  }
  return {3600, 2};
}

// Without the zeros that end its decimals, with two digits at least before them.
QString twoDigits(double number, int decimals) {
  QString text = QString::number(number, 'f', decimals);
  while (text.contains(QLatin1Char('.')) && (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.'))))
    text.chop(1);
  if (number < 10) text.prepend(QLatin1Char('0'));
  return text.replace(QLatin1Char('.'), QLocale().decimalPoint());
}

// `parts` of a degree, in the smallest unit that is written.
QString partsText(double parts, DegreeFormat format) {
  Division const division = divisionOf(format);
  if (division.perDegree == 1) return grouped(parts) + QStringLiteral("°");
  QString text = QStringLiteral("%1°").arg(std::floor(parts / division.perDegree));
  double const minutes = std::fmod(parts, division.perDegree) * 60 / division.perDegree;
  if (division.perDegree == 60) return text + twoDigits(minutes, division.decimals) + QStringLiteral("′");
  double const seconds = std::fmod(parts, 60);
  bool const isShort = format == DegreeFormat::Automatic;
  if (!isShort || minutes > 0) text += twoDigits(std::floor(minutes + 1e-9), 0) + QStringLiteral("′");
  if (!isShort || seconds > 0) text += twoDigits(seconds, division.decimals) + QStringLiteral("″");
  return text;
}

QString hemisphere(bool isLongitude, bool isNegative) {
  if (isLongitude)
    return isNegative ? QCoreApplication::translate("Graticule", "W") : QCoreApplication::translate("Graticule", "E");
  return isNegative ? QCoreApplication::translate("Graticule", "S") : QCoreApplication::translate("Graticule", "N");
}

}  // namespace

QString degreesText(double degrees, bool isLongitude, DegreeFormat format, bool signs) {
  double const turned = isLongitude ? std::remainder(degrees, 360.0) : degrees;
  Division const division = divisionOf(format);
  double const grain = std::pow(10, division.decimals);
  double const parts = std::round(std::abs(turned) * division.perDegree * grain) / grain;
  QString const text = partsText(parts, format);
  bool const hasSide = parts > 0 && !(isLongitude && parts == 180.0 * division.perDegree);
  if (!hasSide) return text;
  if (signs) return (turned < 0 ? minus() : QString()) + text;
  return text + hemisphere(isLongitude, turned < 0);
}

QString coordinateText(double coordinate, bool isEasting, QString const& unit, bool signs) {
  QString const number = (coordinate < 0 ? minus() : QString()) + grouped(std::abs(coordinate));
  if (signs) return number;
  QString const space = QStringLiteral("\u00a0"), degree = QStringLiteral("°");
  QString const counted = unit.isEmpty() || unit == degree ? number + unit : number + space + unit;
  return counted + space + hemisphere(isEasting, false);
}

QString unitOf(QString const& definition) {
  auto const system = makeCoordinateSystem(definition);
  if (!system) return QStringLiteral("m");
  if (system->IsGeographic()) return QStringLiteral("°");
  double const metres = system->GetLinearUnits();
  for (GroundUnit const& unit : groundUnits())
    if (std::abs(unit.metres - metres) < sameUnit * metres) return QString::fromUtf8(unit.sign);
  return QString();
}

}  // namespace SysCarto
