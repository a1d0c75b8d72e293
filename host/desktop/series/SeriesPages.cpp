#include "SeriesPages.h"

#include "FeatureFit.h"
#include "Neighbours.h"
#include "PageRanges.h"

#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"

using SysCarto::MapHost;
using SysCarto::PageLayoutHost;
using SysCarto::Series;

bool SeriesPages::areIn(SysCarto::MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  return layout && PageLayoutHost::series(*layout).isUsed();
}

std::unique_ptr<SeriesPages> SeriesPages::read(SysCarto::MapDocument const& document, QString& problem,
                                               QStringList& warnings) {
  auto const layout = document.GetPageLayout();
  if (!layout) {
    problem = tr("There is no document whose pages could be shown.");
    return nullptr;
  }
  std::unique_ptr<SeriesPages> pages(new SeriesPages(layout));
  pages->coverage_ = Coverage::read(*layout, problem);
  if (!pages->coverage_) return nullptr;
  pages->check(warnings);
  return pages;
}

SeriesPages::SeriesPages(SysUtility::_ptr_t<SysCarto::PageLayout> layout) : layout_(std::move(layout)) {}
SeriesPages::~SeriesPages() { leave(); }

// Conditions are asked of all features at once, in one pass for each.
std::optional<QSet<int>> const& SeriesPages::conditionFor(QString const& pages, QString& problem) {
  auto known = conditions_.find(pages);
  if (known == conditions_.end()) known = conditions_.insert(pages, coverage_->pagesThatMeet(pages, problem));
  return *known;
}

void SeriesPages::check(QStringList& warnings) {
  for (auto const& element : layout_->GetGraphicsContainer()->GetElements()) {
    QString const& pages = SysCarto::ElementHost::pages(*element);
    QString problem;
    if (!pages.isEmpty() && !PageRanges::of(pages)) conditionFor(pages, problem);
    if (!problem.isEmpty()) warnings << tr("The element “%1” stands on all pages: %2").arg(element->GetName(), problem);
  }
}

int SeriesPages::find(QString const& text) const {
  bool isNumber = false;
  int const number = text.toInt(&isNumber);
  if (isNumber && number >= 1 && number <= count()) return number;
  for (int page = 1; page <= count(); ++page)
    if (name(page).compare(text, Qt::CaseInsensitive) == 0) return page;
  return 0;
}

// What is no condition leaves the element on all pages.
bool SeriesPages::isAmong(QString const& pages) {
  if (auto const ranges = PageRanges::of(pages)) return ranges->contains(shown_, count());
  QString problem;
  auto const& meeting = conditionFor(pages, problem);
  return !meeting || meeting->contains(shown_);
}

std::optional<QString> SeriesPages::text(QString const& name, QString const& argument) const {
  if (name == QLatin1String("page") && argument.isEmpty()) return QString::number(shown_);
  if (name == QLatin1String("pages") && argument.isEmpty()) return QString::number(count());
  if (name == QLatin1String("page") && argument == QLatin1String("name")) return this->name(shown_);
  if (name == QLatin1String("field")) {
    int const field = coverage_->fieldOf(argument);
    return field < 0 ? std::optional<QString>() : textOf(row_.value(field));
  }
  bool const asksForPage = name == QLatin1String("neighbourpage");
  auto const& map = PageLayoutHost::series(*layout_).frame.map;
  if (!map || (name != QLatin1String("neighbour") && !asksForPage)) return std::nullopt;
  auto const neighbour = neighbourOf(*coverage_, shown_, argument, *map);
  if (!neighbour) return std::nullopt;
  if (*neighbour == 0) return QString();
  return asksForPage ? QString::number(*neighbour) : this->name(*neighbour);
}

// Where the coverage has no geometries at all, maps stay where they are; where none follows, none needs a place.
QString SeriesPages::show(int page) {
  leave();
  shown_ = page;
  row_ = coverage_->row(page);
  Series const& series = PageLayoutHost::series(*layout_);
  bool isPlaced = place(series.frame), follows = bool(series.frame.map);
  for (SysCarto::SeriesFrame const& follower : series.followers) {
    isPlaced = place(follower) || isPlaced;
    follows = follower.map || follows;
  }
  if (auto const& layer = coverage_->layer())
    layer->setSpotlight(
        SysCarto::Spotlight{coverage_->feature(page), series.hidesOthers, series.highlight, series.outside});
  auto shownPage = std::make_shared<SysCarto::ShownPage>();
  shownPage->text = [this](QString const& name, QString const& argument) { return text(name, argument); };
  shownPage->isAmong = [this](QString const& pages) { return isAmong(pages); };
  PageLayoutHost::setShownPage(*layout_, shownPage);
  if (isPlaced || !follows || !coverage_->hasPlaces()) return QString();
  return tr("Page %1 “%2”: its feature has no place that the map could show; leave it out by “series/filter”, or mend "
            "its geometry.")
      .arg(QString::number(page), name(page));
}

bool SeriesPages::place(SysCarto::SeriesFrame const& frame) {
  Series const& series = PageLayoutHost::series(*layout_);
  if (!frame.map) return false;
  QString const storeSystem = series.frame.map ? series.frame.map->GetCoordinateSystem() : QString();
  auto const shape =
      shapeOf(*coverage_->shapeOf(shown_), coverage_->feature(shown_), storeSystem, frame.map->GetCoordinateSystem());
  int const field = frame.rotationField.isEmpty() ? -1 : coverage_->fieldOf(frame.rotationField);
  double const degrees = field < 0 ? MapHost::storedRotation(*frame.map) : row_.value(field).toDouble();
  auto const portion = portionFor(frame, shape, frame.alongLines && field < 0 ? 0 : degrees);
  if (!portion) return false;
  MapHost::showInstead(*frame.map, portion);
  placed_.push_back({frame.map, frame.map->GetCoordinateSystem(), MapHost::storedRotation(*frame.map),
                     MapHost::lockedScale(*frame.map)});
  return true;
}

void SeriesPages::leave() {
  if (shown_ == 0) return;
  shown_ = 0;
  for (Placed const& one : placed_) MapHost::showInstead(*one.map, std::nullopt);
  placed_.clear();
  if (auto const& layer = coverage_->layer()) layer->setSpotlight(std::nullopt);
  PageLayoutHost::setShownPage(*layout_, nullptr);
}

SeriesPages::State SeriesPages::state() const {
  State state = State::Shown;
  for (Placed const& one : placed_) {
    if (MapHost::isShownInstead(*one.map)) continue;
    bool const isMoved = one.coordinateSystem == one.map->GetCoordinateSystem() &&
                         one.rotation == MapHost::storedRotation(*one.map) &&
                         one.lockedScale == MapHost::lockedScale(*one.map);
    if (!isMoved) return State::Changed;
    state = State::Moved;
  }
  return state;
}
