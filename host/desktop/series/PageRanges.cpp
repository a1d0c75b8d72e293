#include "PageRanges.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <limits>

std::optional<PageRanges> PageRanges::of(QString const& text) {
  static QRegularExpression const range(QStringLiteral(R"(^([1-9]\d{0,8})(?:\s*(-)\s*([1-9]\d{0,8})?)?$)"));
  PageRanges pages;
  for (QString const& part : text.split(QLatin1Char(','))) {
    QString const one = part.trimmed();
    struct Word {
      char const* text;
      bool& isMeant;
    } const words[] = {
        {"first", pages.isFirst_}, {"last", pages.isLast_}, {"odd", pages.isOdd_}, {"even", pages.isEven_}};
    auto const word = std::find_if(std::begin(words), std::end(words),
                                   [&](Word const& known) { return one == QLatin1String(known.text); });
    if (word != std::end(words)) {
      word->isMeant = true;
      continue;
    }
    auto const match = range.match(one);
    if (!match.hasMatch()) return std::nullopt;
    int const from = match.captured(1).toInt();
    int const to = !match.captured(3).isEmpty()  ? match.captured(3).toInt()
                   : match.captured(2).isEmpty() ? from
                                                 : std::numeric_limits<int>::max();
    if (to < from) return std::nullopt;
    pages.ranges_.emplace_back(from, to);
  }
  return pages;
}

bool PageRanges::contains(int page, int count) const {
  bool const isNamed =
      (isFirst_ && page == 1) || (isLast_ && page == count) || (isOdd_ && page % 2 == 1) || (isEven_ && page % 2 == 0);
  return isNamed || std::any_of(ranges_.begin(), ranges_.end(),
                                [page](auto const& range) { return range.first <= page && page <= range.second; });
}
