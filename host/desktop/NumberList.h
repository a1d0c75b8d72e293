#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <cmath>

/// The numbers of a step's value, between commas; none at all where one of them is no number.
inline QVector<double> numbersIn(QString const& text) {
  QVector<double> numbers;
  for (QString const& part : text.split(QLatin1Char(','))) {
    bool isNumber = false;
    double const number = part.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) return {};
    numbers << number;
  }
  return numbers;
}
