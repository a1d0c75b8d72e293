#include "ScaleText.h"

#include <QLocale>
#include <QRegularExpression>

namespace SysUtility {

namespace {

constexpr double minDenominator = 0.01, maxDenominator = 1e10;

struct Multiple {
  char const* names;  // whole, without the point of an abbreviation
  double factor;
};

constexpr Multiple multiples[] = {
    {"k|tsd|tausend|thousand|千", 1e3},
    {"万|萬", 1e4},
    {"m|mio|mill|million|millions|millionen|百万", 1e6},
    {"亿|億", 1e8},
    {"g|bn|mrd|billion|milliarde|milliarden", 1e9},
};

// 1 where there is no name; nothing for one that is unknown.
std::optional<double> factorOf(QString const& name) {
  if (name.isEmpty()) return 1;
  for (Multiple const& multiple : multiples)
    if (QString::fromUtf8(multiple.names).split(QLatin1Char('|')).contains(name.toLower())) return multiple.factor;
  return std::nullopt;
}

// The number as C writes it; empty where the text is none. Before a multiple a lone separator is that of decimals.
QString plainNumber(QString const& text, bool hasMultiple) {
  static QRegularExpression const grouped(
      QStringLiteral("^(?<whole>[1-9]\\d{0,2}(?:([.,])(?:\\d{2,3}\\2)*\\d{3})?)(?:(?!\\2)[.,](?<decimals>\\d+))?$"));
  static QRegularExpression const plain(QStringLiteral("^(?<whole>\\d+)(?:[.,](?<decimals>\\d+))?$"));
  auto match = (hasMultiple ? plain : grouped).match(text);
  if (!match.hasMatch()) match = (hasMultiple ? grouped : plain).match(text);
  if (!match.hasMatch()) return {};
  QString const whole = match.captured(QStringLiteral("whole")).remove(QLatin1Char('.')).remove(QLatin1Char(','));
  return whole + QLatin1Char('.') + match.captured(QStringLiteral("decimals")) + QLatin1Char('0');
}

}  // namespace

std::optional<double> scaleDenominatorOf(QString const& text) {
  static QRegularExpression const form(QStringLiteral("^(?:1[:/\\x{ff1a}])?(\\d[\\d.,]*)(\\p{L}*)\\.?$"),
                                       QRegularExpression::UseUnicodePropertiesOption);
  static QRegularExpression const space(QStringLiteral("[\\s'\\x{2019}]"),
                                        QRegularExpression::UseUnicodePropertiesOption);
  auto const match = form.match(QString(text).remove(space));
  auto const factor = factorOf(match.captured(2));
  bool isNumber = false;
  double const number = QLocale::c().toDouble(plainNumber(match.captured(1), !match.captured(2).isEmpty()), &isNumber);
  double const denominator = number * factor.value_or(0);
  if (!isNumber || !(denominator >= minDenominator && denominator <= maxDenominator)) return std::nullopt;
  return denominator;
}

}  // namespace SysUtility
