#include "SeriesRun.h"

#include "host/desktop/series/SeriesView.h"

#include <utility>

SeriesRun::SeriesRun(SeriesView& series, Tell tell)
    : series_(series), tell_(std::move(tell)), before_(series.pages() ? series.pages()->shown() : 0) {
  if (before_ > 0) series_.show(0);
}

SeriesRun::~SeriesRun() {
  if (series_.pages()) series_.show(before_);
}

NextPage SeriesRun::next() {
  NextPage all = series_.allPages(problems_);
  if (!all || !tell_) return all;
  return [&series = series_, tell = tell_, all = std::move(all)] {
    auto const name = all();
    if (name) tell(tr("Page %1 of %2: %3").arg(series.pages()->shown()).arg(series.pages()->count()).arg(*name));
    return name;
  };
}

QString SeriesRun::withProblems(QString const& problem) const {
  constexpr int maxTold = 20;
  QStringList all = problems_.mid(0, maxTold);
  if (problems_.size() > maxTold) all << QStringLiteral("…");
  if (!problem.isEmpty()) all << problem;
  return all.join(QLatin1Char('\n'));
}
