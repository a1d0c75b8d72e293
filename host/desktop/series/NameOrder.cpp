#include "NameOrder.h"

namespace {

QString folded(QString const& text) {
  QString letters;
  for (QChar const character : text.normalized(QString::NormalizationForm_D))
    if (!character.isMark()) letters += character;
  return letters.toCaseFolded();
}

bool isDigit(QChar character) { return character >= QLatin1Char('0') && character <= QLatin1Char('9'); }

// The number that begins at a place, without zeros before it; the place is then behind it.
QStringRef takeNumber(QString const& text, int& at) {
  while (at < text.size() && text[at] == QLatin1Char('0')) ++at;
  int const first = at;
  while (at < text.size() && isDigit(text[at])) ++at;
  return text.midRef(first, at - first);
}

int compareFolded(QString const& a, QString const& b) {
  int i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    if (isDigit(a[i]) && isDigit(b[j])) {
      QStringRef const x = takeNumber(a, i), y = takeNumber(b, j);
      int const way = x.size() != y.size() ? x.size() - y.size() : x.compare(y);
      if (way != 0) return way;
    } else if (a[i] != b[j]) {
      return a[i] < b[j] ? -1 : 1;
    } else {
      ++i, ++j;
    }
  }
  return (a.size() - i) - (b.size() - j);
}

}  // namespace

int compareNames(QString const& a, QString const& b) {
  int const way = compareFolded(folded(a), folded(b));
  return way != 0 ? way : a.compare(b);
}
