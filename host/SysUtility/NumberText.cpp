#include "NumberText.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace SysUtility {

// The locale of programs ("C") groups nothing; people who have chosen none read the English way.
QString grouped(double number, int significantDigits) {
  constexpr int usualDecimals = 6, maxDecimals = 30;
  double const size = std::abs(number);
  int most = usualDecimals;
  if (significantDigits > 0 && size > 0 && size < 1)
    most = std::clamp(significantDigits - 1 - static_cast<int>(std::floor(std::log10(size))), most, maxDecimals);
  QLocale const locale = QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale();
  double const unit = std::pow(10, most), rounded = std::round(number * unit) / unit;
  int decimals = 0;
  for (double shifted = rounded; decimals < most && std::abs(shifted - std::round(shifted)) > 1e-6 * std::abs(shifted);
       shifted *= 10)
    ++decimals;
  return locale.toString(rounded, 'f', decimals);
}

}  // namespace SysUtility
