#include "TextWrap.h"

#include <QStringList>
#include <QTextBoundaryFinder>

namespace SysDisplay {

QString wrapped(QString const& text, TextSymbol const& symbol, double widthPt) {
  if (!(widthPt > 0)) return text;
  QStringList lines;
  for (QString const& given : text.split(QLatin1Char('\n'))) {
    QTextBoundaryFinder breaks(QTextBoundaryFinder::Line, given);
    int start = 0, end = 0;
    for (int next = breaks.toNextBoundary(); next >= 0; next = breaks.toNextBoundary()) {
      if (end > start && symbol.bounds(given.mid(start, next - start).trimmed()).width() > widthPt) {
        lines << given.mid(start, end - start).trimmed();
        start = end;
      }
      end = next;
    }
    lines << given.mid(start).trimmed();
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace SysDisplay
