#include "SeriesView.h"

#include "host/SysCarto/document/SeriesSettings.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/DocumentViews.h"

#include <algorithm>
#include <utility>

SeriesView::SeriesView(DocumentSession& session, DocumentViews& views) : session_(session), views_(views) {
  connect(&session, &DocumentSession::replaced, this, &SeriesView::follow);
  connect(&session, &DocumentSession::historyChanged, this, &SeriesView::follow);
}

SeriesView::~SeriesView() = default;

quint64 SeriesView::version() const {
  auto const layout = session_.document().GetPageLayout();
  return layout ? SysCarto::PageLayoutHost::seriesVersion(*layout) : 0;
}

QString SeriesView::coordinateSystem() const {
  auto const layout = session_.document().GetPageLayout();
  auto const map = layout ? SysCarto::PageLayoutHost::series(*layout).frame.map : nullptr;
  return map ? map->GetCoordinateSystem() : QString();
}

void SeriesView::read() {
  auto const layout = session_.document().GetPageLayout();
  problem_.clear();
  pages_.reset();
  isRead_ = true;
  version_ = version();
  coordinateSystem_ = coordinateSystem();
  source_ = layout ? SysCarto::coverageOf(*layout) : SysCarto::SourceSettings();
  QStringList warnings;
  if (SeriesPages::areIn(session_.document())) pages_ = SeriesPages::read(session_.document(), problem_, warnings);
}

void SeriesView::follow() {
  auto const layout = session_.document().GetPageLayout();
  bool const isSame = isRead_ && version_ == version() && layout && source_ == SysCarto::coverageOf(*layout) &&
                      coordinateSystem_ == coordinateSystem();
  if (isSame) return followMaps();
  int const shown = pages_ ? pages_->shown() : 0;
  bool const isSameDocument = shown > 0 && pages_->isOf(layout.get());
  pages_.reset();
  isRead_ = false;
  if (isSameDocument && pages()) show(std::min(shown, pages_->count()));
  emit replaced();
}

void SeriesView::followMaps() {
  auto const state = pages_ ? pages_->state() : SeriesPages::State::Shown;
  if (state == SeriesPages::State::Changed) show(pages_->shown());
  if (state == SeriesPages::State::Moved) show(0);
}

SeriesPages const* SeriesView::pages() {
  if (!isRead_) read();
  return pages_.get();
}

QString SeriesView::show(int page) {
  if (!pages()) return problem_.isEmpty() ? tr("The document has no series of pages.") : problem_;
  QString problem;
  if (page > pages_->count() || page < 0)
    return tr("There is no page %1; the series has %2 pages.").arg(page).arg(pages_->count());
  if (page == 0)
    pages_->leave();
  else
    problem = pages_->show(page);
  views_.redraw();
  emit shownChanged();
  return problem;
}

NextPage SeriesView::allPages(QStringList& problems) {
  if (!pages() || pages_->shown() > 0) return nullptr;
  return [this, &problems, last = 0]() mutable -> std::optional<QString> {
    while (last < pages_->count()) {
      QString const problem = pages_->show(++last);
      if (problem.isEmpty()) return pages_->name(last);
      problems << problem;
    }
    return std::nullopt;
  };
}

QString SeriesView::show(QString const& page) {
  if (!pages()) return show(0);
  int const shown = pages_->shown(), count = pages_->count();
  std::pair<char const*, int> const words[] = {{"first", 1},
                                               {"last", count},
                                               {"next", std::min(shown + 1, count)},
                                               {"previous", std::max(shown - 1, 1)},
                                               {"none", 0}};
  for (auto const& [word, number] : words)
    if (page == QLatin1String(word)) return show(number);
  int const found = pages_->find(page);
  if (found > 0) return show(found);
  return tr("No page has the number or the name “%1”; there are %2, from “%3” to “%4”.")
      .arg(page, QString::number(count), pages_->name(1), pages_->name(count));
}
