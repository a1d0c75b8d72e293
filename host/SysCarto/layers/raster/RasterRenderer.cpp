#include "RasterRenderer.h"

#include "host/SysCarto/layers/ColorRamp.h"
#include "host/SysDisplay/SymbolFields.h"
#include "host/SysUtility/Fields.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace SysCarto {

using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::TextKind;
using SysUtility::Unit;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(RasterRenderer)
};

using Kind = RasterRendererSettings::Kind;
using Stretch = StretchSettings::Kind;

constexpr int maxClasses = 1000, maxBand = 10000;
constexpr double farthest = 1e30;
QColor const usualColor(128, 128, 128);

// clang-format off
constexpr Choice kinds[] = {
    {Kind::Color,     "color",     QT_TRANSLATE_NOOP("Fields", "Colours of bands")},
    {Kind::Palette,   "palette",   QT_TRANSLATE_NOOP("Fields", "A colour for each value")},
    {Kind::Ramp,      "ramp",      QT_TRANSLATE_NOOP("Fields", "Colours by a number")},
    {Kind::Hillshade, "hillshade", QT_TRANSLATE_NOOP("Fields", "Hillshade")},
    {Kind::Slope,     "slope",     QT_TRANSLATE_NOOP("Fields", "Slope")},
};
constexpr Choice stretches[] = {
    {Stretch::None,        "none",        QT_TRANSLATE_NOOP("Fields", "None")},
    {Stretch::Range,       "range",       QT_TRANSLATE_NOOP("Fields", "Between two numbers")},
    {Stretch::MinMax,      "minMax",      QT_TRANSLATE_NOOP("Fields", "From the least to the greatest")},
    {Stretch::Deviations,  "deviations",  QT_TRANSLATE_NOOP("Fields", "By standard deviations")},
    {Stretch::Percentiles, "percentiles", QT_TRANSLATE_NOOP("Fields", "By percentiles")},
};
enum Steps { Linear, Classified };
constexpr Choice steps[] = {
    {Steps::Linear,     "linear",  QT_TRANSLATE_NOOP("Fields", "Mixed between the values")},
    {Steps::Classified, "classes", QT_TRANSLATE_NOOP("Fields", "One for each class")},
};
// clang-format on

void listBand(Fields& fields, char const* key, char const* caption, int& band, int usual) {
  fields.integer({key, caption, QT_TRANSLATE_NOOP("Fields", "The number of the band, counted from 1.")}, band, 1,
                 maxBand, usual);
}

void listOneBand(Fields& fields, int& band) { listBand(fields, "band", QT_TRANSLATE_NOOP("Fields", "Band"), band, 1); }

void listStretch(Fields& fields, StretchSettings& stretch, Stretch usual) {
  StretchSettings const byDefault;
  fields.choice<Stretch>(
      {"stretch", QT_TRANSLATE_NOOP("Fields", "Stretch"),
       QT_TRANSLATE_NOOP("Fields",
                         "Which values get the ends of the colours: 0 and 255 without one, two numbers, or what is "
                         "found in an overview of the raster.")},
      stretch.kind, stretches, usual);
  fields.number({"minimum", QT_TRANSLATE_NOOP("Fields", "Least value"),
                 QT_TRANSLATE_NOOP("Fields", "Where the colours begin, of a stretch between two numbers.")},
                stretch.minimum, {-farthest, farthest}, byDefault.minimum);
  fields.number({"maximum", QT_TRANSLATE_NOOP("Fields", "Greatest value"),
                 QT_TRANSLATE_NOOP("Fields", "Where the colours end, of a stretch between two numbers.")},
                stretch.maximum, {-farthest, farthest}, byDefault.maximum);
  fields.number({"deviations", QT_TRANSLATE_NOOP("Fields", "Standard deviations"),
                 QT_TRANSLATE_NOOP("Fields", "To either side of the mean, of a stretch by standard deviations.")},
                stretch.deviations, {0.1, 10}, byDefault.deviations);
  fields.number({"percent", QT_TRANSLATE_NOOP("Fields", "Cut off"),
                 QT_TRANSLATE_NOOP("Fields", "Of the values at either end, of a stretch by percentiles.")},
                stretch.percent, {0, 49, Unit::Percent}, byDefault.percent);
}

// Names are the same in all languages.
QVector<Choice> const& rampNames() {
  static QVector<Choice> const names = [] {
    QVector<Choice> all;
    for (ColorRamp const& ramp : ColorRamp::all()) all << Choice(all.size(), ramp.name, ramp.name);
    return all;
  }();
  return names;
}

void listRamp(Fields& fields, QString& ramp, QString const& usual, bool& reversed) {
  if (ramp.isEmpty()) ramp = usual;
  auto const numberOf = [](QString const& name) {
    auto const& names = rampNames();
    auto const found =
        std::find_if(names.begin(), names.end(), [&](Choice const& one) { return name == QLatin1String(one.name); });
    return static_cast<int>(found - names.begin());
  };
  int number = numberOf(ramp);
  fields.choice<int>({"ramp", QT_TRANSLATE_NOOP("Fields", "Colour ramp"),
                      QT_TRANSLATE_NOOP("Fields", "The row of colours, as it is known by its name.")},
                     number, rampNames(), numberOf(usual));
  ramp = QLatin1String(rampNames()[number].name);
  fields.flag({"reversed", QT_TRANSLATE_NOOP("Fields", "Reversed"),
               QT_TRANSLATE_NOOP("Fields", "Whether the ramp begins with its last colour.")},
              reversed, false);
}

void listClasses(Fields& fields, std::vector<RasterClass>& classes) {
  fields.list<std::vector<RasterClass>>(
      {"classes", QT_TRANSLATE_NOOP("Fields", "Classes"),
       QT_TRANSLATE_NOOP("Fields",
                         "Values with their colours, in any order; without any, those of the file or the ramp count."),
       "rasterClass"},
      classes, maxClasses, [](Fields& own, RasterClass& one, int) {
        own.number({"value", QT_TRANSLATE_NOOP("Fields", "Value"),
                    QT_TRANSLATE_NOOP("Fields", "The value, or the first of those that belong to the class.")},
                   one.value, {-farthest, farthest});
        SysDisplay::listColor(
            own, {"color", QT_TRANSLATE_NOOP("Fields", "Colour"), QT_TRANSLATE_NOOP("Fields", "What it is drawn in.")},
            one.color, usualColor);
        own.text({"label", QT_TRANSLATE_NOOP("Fields", "Label"),
                  QT_TRANSLATE_NOOP("Fields",
                                    "What a legend calls it; where it is empty, its value, or from where to where "
                                    "it reaches.")},
                 one.label, TextKind::Line, QString());
      });
}

void listHeights(Fields& fields, double& factor) {
  fields.number({"verticalFactor", QT_TRANSLATE_NOOP("Fields", "Vertical factor"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "Heights times this are metres: 0.3048 for feet, or more than 1 to show the ground "
                                   "steeper than it is.")},
                factor, {0.0001, 10000}, 1.0);
}

}  // namespace

bool StretchSettings::operator==(StretchSettings const& other) const {
  return std::tie(kind, minimum, maximum, deviations, percent) ==
         std::tie(other.kind, other.minimum, other.maximum, other.deviations, other.percent);
}

void RasterRendererSettings::list(Fields& fields) {
  RasterRendererSettings const usual;
  int chosen = static_cast<int>(kind);
  fields.variant({"type", QT_TRANSLATE_NOOP("Fields", "Kind"),
                  QT_TRANSLATE_NOOP("Fields", "How colours are made of the raster's values.")},
                 chosen, kinds, [&](int wanted) {
                   kind = static_cast<Kind>(wanted);
                   switch (kind) {
                     case Kind::Color:
                       listBand(fields, "red", QT_TRANSLATE_NOOP("Fields", "Red band"), red, usual.red);
                       listBand(fields, "green", QT_TRANSLATE_NOOP("Fields", "Green band"), green, usual.green);
                       listBand(fields, "blue", QT_TRANSLATE_NOOP("Fields", "Blue band"), blue, usual.blue);
                       listStretch(fields, stretch, Stretch::None);
                       fields.number(
                           {"gamma", QT_TRANSLATE_NOOP("Fields", "Gamma"),
                            QT_TRANSLATE_NOOP("Fields", "More than 1 brightens the middle, less darkens it.")},
                           gamma, {0.1, 10}, usual.gamma);
                       break;
                     case Kind::Palette:
                       listOneBand(fields, band);
                       listClasses(fields, classes);
                       break;
                     case Kind::Ramp: {
                       listOneBand(fields, band);
                       listRamp(fields, ramp, QLatin1String(ColorRamp::usual(RampKind::Sequential).name), reversed);
                       listStretch(fields, stretch, Stretch::MinMax);
                       listClasses(fields, classes);
                       Steps way = interpolates ? Linear : Classified;
                       fields.choice<Steps>({"steps", QT_TRANSLATE_NOOP("Fields", "Colours"),
                                             QT_TRANSLATE_NOOP("Fields",
                                                               "Whether colours are mixed between the values of "
                                                               "classes, or each holds up to the next.")},
                                            way, steps, Linear);
                       interpolates = way == Linear;
                       if (!fields.isReading() && !classes.empty())
                         for (char const* const key : {"ramp", "stretch"})
                           fields.remark(key, Texts::tr("The classes stand in for it, so that it does not count."));
                       break;
                     }
                     case Kind::Hillshade:
                       listOneBand(fields, band);
                       fields.number({"azimuth", QT_TRANSLATE_NOOP("Fields", "Azimuth"),
                                      QT_TRANSLATE_NOOP("Fields",
                                                        "Where the light comes from, clockwise from the top of the "
                                                        "page.")},
                                     azimuth, {0, 360, Unit::Degree}, usual.azimuth);
                       fields.number({"altitude", QT_TRANSLATE_NOOP("Fields", "Altitude"),
                                      QT_TRANSLATE_NOOP("Fields", "How high the light stands above the horizon.")},
                                     altitude, {1, 90, Unit::Degree}, usual.altitude);
                       listHeights(fields, verticalFactor);
                       fields.flag({"multidirectional", QT_TRANSLATE_NOOP("Fields", "From several directions"),
                                    QT_TRANSLATE_NOOP("Fields",
                                                      "Whether light comes from west and north and between, most from "
                                                      "the side that shows a slope best; the azimuth does not count "
                                                      "then.")},
                                   multidirectional, false);
                       break;
                     case Kind::Slope:
                       listOneBand(fields, band);
                       listHeights(fields, verticalFactor);
                       listRamp(fields, ramp, QStringLiteral("Greys"), reversed);
                       fields.number({"steepest", QT_TRANSLATE_NOOP("Fields", "Steepest"),
                                      QT_TRANSLATE_NOOP("Fields", "The slope that gets the last colour of the ramp.")},
                                     steepest, {1, 90, Unit::Degree}, usual.steepest);
                       break;
                   }
                 });
}

std::vector<int> RasterRendererSettings::bands() const {
  if (kind == Kind::Color) return {red, green, blue};
  return {band};
}

bool RasterRendererSettings::operator==(RasterRendererSettings const& other) const {
  auto const all = [](RasterRendererSettings const& one) {
    return std::tie(one.kind, one.red, one.green, one.blue, one.band, one.stretch, one.gamma, one.classes,
                    one.interpolates, one.ramp, one.reversed, one.azimuth, one.altitude, one.verticalFactor,
                    one.multidirectional, one.steepest);
  };
  return all(*this) == all(other);
}

void ToneSettings::list(Fields& fields) {
  fields.number({"brightness", QT_TRANSLATE_NOOP("Fields", "Brightness"),
                 QT_TRANSLATE_NOOP("Fields", "More than 0 lightens all colours of the layer, less darkens them.")},
                brightness, {-100, 100, Unit::Percent}, 0.0);
  fields.number(
      {"contrast", QT_TRANSLATE_NOOP("Fields", "Contrast"),
       QT_TRANSLATE_NOOP("Fields", "More than 0 sets colours apart from a middle grey, less brings them to it.")},
      contrast, {-100, 100, Unit::Percent}, 0.0);
  fields.number({"saturation", QT_TRANSLATE_NOOP("Fields", "Saturation"),
                 QT_TRANSLATE_NOOP("Fields", "−100 leaves nothing but greys; more than 0 makes colours stronger.")},
                saturation, {-100, 100, Unit::Percent}, 0.0);
}

QRgb ToneSettings::applied(QRgb color) const {
  double channels[] = {double(qRed(color)), double(qGreen(color)), double(qBlue(color))};
  double const grey = 0.2126 * channels[0] + 0.7152 * channels[1] + 0.0722 * channels[2];
  double const strength = saturation <= 0 ? 1 + saturation / 100 : 1 + saturation / 50;
  double const spread = contrast <= 0 ? 1 + contrast / 100 : 1 + contrast / 33;
  for (double& channel : channels) {
    channel = grey + (channel - grey) * strength;
    channel = 127.5 + (channel - 127.5) * spread;
    channel = std::clamp(channel + 2.55 * brightness, 0.0, 255.0);
  }
  auto const rounded = [](double channel) { return static_cast<int>(channel + 0.5); };
  return qRgba(rounded(channels[0]), rounded(channels[1]), rounded(channels[2]), qAlpha(color));
}

}  // namespace SysCarto
