#include "NumberText.h"

#include <QLocale>

#include <cmath>

namespace SysUtility {

// The locale of programs ("C") groups nothing; people who have chosen none read the English way.
QString grouped(double number) {
  QLocale const locale = QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale();
  double const rounded = std::round(number * 1e6) / 1e6;
  int decimals = 0;
  for (double shifted = rounded; decimals < 6 && std::abs(shifted - std::round(shifted)) > 1e-6 * std::abs(shifted);
       shifted *= 10)
    ++decimals;
  return locale.toString(rounded, 'f', decimals);
}

}  // namespace SysUtility
