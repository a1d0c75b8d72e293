#pragma once

#include <SysCarto/Export.h>

#include <QColor>
#include <QString>

#include <vector>

namespace SysUtility {
class Fields;
}

namespace SysCarto {

/// Which values of a band get the darkest and the brightest colour, or the ends of a ramp.
struct StretchSettings {
  enum class Kind { None, Range, MinMax, Deviations, Percentiles };

  Kind kind = Kind::None;
  double minimum = 0, maximum = 255;  ///< of a range
  double deviations = 2;              ///< standard deviations to either side of the mean
  double percent = 2;                 ///< of the values that are cut off at either end

  bool operator==(StretchSettings const& other) const;
};

/// A value, or the first of several, with its colour.
struct RasterClass {
  double value = 0;
  QColor color{128, 128, 128};
  QString label;

  bool operator==(RasterClass const& other) const {
    return value == other.value && color == other.color && label == other.label;
  }
};

/// What a document stores of how a raster is drawn. Bands are counted from 1; angles are degrees.
struct SYSCARTO_EXPORT RasterRendererSettings {
  enum class Kind { Color, Palette, Ramp, Hillshade, Slope };

  Kind kind = Kind::Color;
  int red = 1, green = 2, blue = 3;  ///< bands
  int band = 1;                      ///< of all others
  StretchSettings stretch;
  double gamma = 1;
  std::vector<RasterClass> classes;  ///< of a palette or a ramp; without any, the file's palette or the named ramp
  bool interpolates = true;          ///< whether colours between the values of classes are mixed
  QString ramp;                      ///< a ramp's name; empty for the kind's usual one
  bool reversed = false;
  double azimuth = 315, altitude = 45;  ///< of the light, clockwise from the page's top, and above the horizon
  double verticalFactor = 1;            ///< heights times this are metres
  bool multidirectional = false;
  double steepest = 60;  ///< the slope at the end of a ramp

  void list(SysUtility::Fields& fields);

  /// The bands that it needs.
  std::vector<int> bands() const;

  /// Whether it draws the shape of the ground, for which neighbours of each pixel count.
  bool isRelief() const { return kind == Kind::Hillshade || kind == Kind::Slope; }

  bool operator==(RasterRendererSettings const& other) const;
};

/// What is done to all colours of a layer, each from −100 to 100 percent.
struct ToneSettings {
  double brightness = 0, contrast = 0, saturation = 0;

  void list(SysUtility::Fields& fields);

  bool areNone() const { return brightness == 0 && contrast == 0 && saturation == 0; }
  bool operator==(ToneSettings const& other) const {
    return brightness == other.brightness && contrast == other.contrast && saturation == other.saturation;
  }

  /// Of a colour that is not premultiplied.
  QRgb applied(QRgb color) const;
};

}  // namespace SysCarto
