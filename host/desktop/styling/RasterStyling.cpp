#include "RasterStyling.h"

#include "host/SysCarto/layers/raster/RasterSource.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(RasterStyling)
};

using Meaning = SysCarto::RasterBand::Meaning;

// From the lowest land to the highest, and from the deepest sea to its shore.
constexpr char const* landTints[] = {"#a9cfa0", "#d3e0a6", "#f2e8b6", "#e6c896", "#c79f78", "#ece5e0"};
constexpr char const* seaTints[] = {"#5b8fb9", "#93bcd8", "#cbe4f0"};
constexpr double deepest = -50;  // of land, about: what reaches lower is the ground of a sea
constexpr double shore = -0.01;

double roundStep(double width) {
  double const power = std::pow(10, std::floor(std::log10(width)));
  for (double const factor : {1.0, 2.0, 5.0})
    if (factor * power >= width) return factor * power;
  return 10 * power;
}

void addTints(QJsonArray& classes, char const* const* tints, int count, double from, double step) {
  for (int i = 0; i < count; ++i)
    classes.append(QJsonObject{{"value", from + i * step}, {"color", QLatin1String(tints[i])}});
}

// At round heights, from the lowest to the highest.
QJsonArray tintsFor(double low, double high) {
  constexpr int land = std::size(landTints), sea = std::size(seaTints);
  QJsonArray classes;
  if (!(high > low)) {
    addTints(classes, landTints, 1, low, 0);
    return classes;
  }
  bool const hasSea = low < deepest && high > 0;
  if (hasSea) {
    double const step = roundStep(-low / (sea - 1));
    addTints(classes, seaTints, sea - 1, -step * (sea - 1), step);
    classes.append(QJsonObject{{"value", shore}, {"color", QLatin1String(seaTints[sea - 1])}, {"label", "< 0"}});
  }
  double const bottom = hasSea ? 0 : low, step = roundStep(std::max((high - bottom) / (land - 1), 1e-6));
  addTints(classes, landTints, land, std::floor(bottom / step) * step, step);
  return classes;
}

// Without the few that lie far from all others.
std::pair<double, double> rangeOf(std::vector<float> values) {
  std::sort(values.begin(), values.end());
  size_t const last = values.size() - 1, cut = last / 2000;
  return {double(values[cut]), double(values[last - cut])};
}

std::vector<RasterLook> heights(SysCarto::RasterSource const& raster) {
  std::vector<float> const values = raster.sample(1);
  if (values.empty()) return {{{{"type", "ramp"}}, false, false, Texts::tr("holds no values, so nothing is drawn")}};
  auto const [low, high] = rangeOf(values);
  RasterLook const tints{{{"type", "ramp"}, {"classes", tintsFor(low, high)}},
                         false,
                         true,
                         Texts::tr("taken for heights, which are tinted")};
  RasterLook const shades{
      {{"type", "hillshade"}}, true, false, Texts::tr("light from the upper left over the heights")};
  return {tints, shades};
}

RasterLook picture(SysCarto::RasterSource const& raster, std::array<int, 3> const& bands) {
  bool const isByte = raster.bands().front().isByte;
  QJsonObject renderer{{"type", "color"}, {"red", bands[0]}, {"green", bands[1]}, {"blue", bands[2]}};
  int const bits = raster.bands().front().bits;
  if (!isByte) {
    renderer.insert("stretch", "percentiles");
  } else if (bits < 8) {
    renderer.insert("stretch", "range");
    renderer.insert("maximum", (1 << bits) - 1);
  }
  return {renderer, false, false, Texts::tr("in the colours of its bands")};
}

}  // namespace

std::vector<RasterLook> RasterStyling::looksOf(SysCarto::RasterSource const& raster) {
  auto const& bands = raster.bands();
  if (!raster.palette(1).isEmpty())
    return {{{{"type", "palette"}}, false, false, Texts::tr("in the colours of its palette")}};
  auto const numberOf = [&](Meaning meaning, int usual) {
    auto const found =
        std::find_if(bands.begin(), bands.end(), [&](auto const& one) { return one.meaning == meaning; });
    return found == bands.end() ? usual : static_cast<int>(found - bands.begin()) + 1;
  };
  if (bands.size() >= 3)
    return {picture(raster, {numberOf(Meaning::Red, 1), numberOf(Meaning::Green, 2), numberOf(Meaning::Blue, 3)})};
  return bands.front().isByte ? std::vector<RasterLook>{picture(raster, {1, 1, 1})} : heights(raster);
}

bool RasterStyling::isSlow(SysCarto::RasterSource const& raster) {
  constexpr double many = 5e7;
  QSizeF const size = raster.size();
  return size.width() * size.height() > many && raster.levelFor(std::max(size.width(), size.height())).overview < 0;
}
