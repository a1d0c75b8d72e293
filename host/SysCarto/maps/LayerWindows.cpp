#include "VectorLayer.h"

#include "host/SysCarto/layers/FeatureLooks.h"
#include "host/SysCarto/layers/FeaturePasses.h"
#include "host/SysCarto/layers/WithoutWaiting.h"
#include "host/SysDisplay/DisplayTransformationHost.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <set>
#include <tuple>

namespace SysCarto {

using namespace SysDisplay;
using SysUI::TrackerCancel;
using SysUtility::_ptr_t;

// What a layer reads by windows, and draws and tells of these.

namespace {

constexpr std::ptrdiff_t unpackedAtOnce = 2048;  // features
constexpr int mostMarks = 20000;                 // that labels keep off one by one
constexpr double labelSquarePt = 4, markSquarePt = 2;
constexpr double printedDpi = 300;
constexpr double enlarged = 1.1;  // beyond the resolution of print
constexpr double pointsPerInch = 72;

Box boxFrom(QRectF const& rectangle) {
  return {rectangle.left(), rectangle.top(), rectangle.right(), rectangle.bottom()};
}

double largerSide(Box const& box) { return std::max(box.xmax - box.xmin, box.ymax - box.ymin); }

// What two boxes have in common; the first where that is nothing.
Box within(Box const& whole, Box const& part) {
  Box const both{std::max(whole.xmin, part.xmin), std::max(whole.ymin, part.ymin), std::min(whole.xmax, part.xmax),
                 std::min(whole.ymax, part.ymax)};
  return both.isEmpty() ? whole : both;
}

using Place = FeaturePack::Place;

// Hands on features of a window in stores of not too many, until `visit` answers false.
template <class Visit>
void inPortions(FeaturePack const& pack, std::vector<Place> const& places, FeatureStore& store, Visit const& visit) {
  auto const* const end = places.data() + places.size();
  for (auto const* begin = places.data(); begin != end;) {
    auto const* const next = begin + std::min<std::ptrdiff_t>(unpackedAtOnce, end - begin);
    store.takeForm(pack.form());
    pack.unpack(begin, next, store);
    if (!visit(begin)) return;
    begin = next;
  }
}

// As above, in no order.
template <class Visit>
void inPortions(FeaturePack const& pack, Box const& area, FeatureStore& store, Visit const& visit) {
  std::vector<Place> places;
  bool goesOn = true;
  auto const handOn = [&] {
    inPortions(pack, places, store, [&](Place const* first) { return goesOn = goesOn && visit(first); });
    places.clear();
  };
  pack.visit(area, [&](Place const& place) {
    places.push_back(place);
    if (places.size() == static_cast<size_t>(unpackedAtOnce)) handOn();
  });
  handOn();
}

// As `FeatureLooks::sort` has them; the looks are those of the store.
void sortForDrawing(FeaturePack const& pack, FeatureLooks const& looks, FeatureStore& store,
                    std::vector<Place>& places) {
  std::vector<std::pair<double, Place>> ranked;
  ranked.reserve(places.size());
  inPortions(pack, places, store, [&](Place const* place) {
    for (int i = 0; i < store.size(); ++i) ranked.emplace_back(looks.rankOf(i), place[i]);
    return true;
  });
  std::stable_sort(ranked.begin(), ranked.end(), [](auto const& a, auto const& b) { return a.first > b.first; });
  std::transform(ranked.begin(), ranked.end(), places.begin(), [](auto const& one) { return one.second; });
}

// What labels are placed by: all that have one, and of very many others one on each square, since names keep off marks
// that lie on one another as off one.
std::vector<Place> placesForLabels(FeaturePack const& pack, Box const& area, double side) {
  int count = 0;
  pack.visit(area, [&](Place const&) { ++count; });
  if (count <= mostMarks) return pack.query(area);
  std::vector<Place> chosen;
  std::set<std::tuple<int, double, double>> taken;
  FeatureStore store;
  inPortions(pack, area, store, [&](Place const* place) {
    for (int i = 0; i < store.size(); ++i, ++place) {
      auto const& feature = store.features[static_cast<size_t>(i)];
      double const x = (feature.box.xmin + feature.box.xmax) / 2, y = (feature.box.ymin + feature.box.ymax) / 2;
      bool const isNamed = store.keepsLabels && !store.labels[static_cast<size_t>(i)].isEmpty();
      bool const isLarge =
          std::max(feature.box.xmax - feature.box.xmin, feature.box.ymax - feature.box.ymin) > 4 * side;
      if (isNamed || isLarge || taken.emplace(feature.symbolClass, std::floor(x / side), std::floor(y / side)).second)
        chosen.push_back(*place);
    }
    return true;
  });
  std::sort(chosen.begin(), chosen.end(), [](Place const& a, Place const& b) { return a.id < b.id; });
  return chosen;
}

}  // namespace

qint64 VectorLayer::count() const { return hasWindows() ? count_ : features().size(); }

LabelChoice VectorLayer::labelChoice(double unitsPerPoint) const {
  LabelChoice choice{labelSquarePt * unitsPerPoint, {}};
  for (PinnedLabel const& pin : labels_.pinned) choice.always << pin.key;
  return choice;
}

Box VectorLayer::extent() const { return hasWindows() ? extent_ : features().box(); }

std::shared_ptr<FeatureStore const> VectorLayer::shared() const { return {std::shared_ptr<void>(), &features()}; }

std::shared_ptr<FeatureStore const> VectorLayer::readOnly(WindowQuery const& query, QString* problem) const {
  ReadFeatures read = readWindow(source_, mapSystem_, *renderer_, labels_.read(), query);
  keepWarnings(read);
  if (problem) *problem = read.error;
  return std::move(read.store);
}

std::shared_ptr<FeatureStore const> VectorLayer::featuresIn(Box const& area, QString* problem) const {
  return hasWindows() ? readOnly({area, 0, {}, {}}, problem) : shared();
}

std::shared_ptr<FeatureStore const> VectorLayer::featuresNumbered(std::vector<qint64> const& ids,
                                                                  QString* problem) const {
  if (!hasWindows()) return shared();
  return ids.empty() ? std::make_shared<FeatureStore>() : readOnly({Box(), 0, ids, {}}, problem);
}

// At least what a page in print shows is read, so that a view, its labels, its legends and an export have one window.
// Of a page that is enlarged beyond that, what is on the screen, and as much around it.
std::shared_ptr<FeaturePack const> VectorLayer::window(DisplayTransformation const& transformation,
                                                       double unitsPerPixel, Box const& reached, double reach,
                                                       _ptr_t<TrackerCancel> const& cancel) const {
  double const unitsPerPoint =
      transformation.PixelsPerPoint() / DisplayTransformationHost::pixelsPerUnit(transformation);
  double const printed = unitsPerPoint * pointsPerInch / printedDpi;
  auto const* const meanwhile = WithoutWaiting::current();
  WindowWish wish;
  wish.unitsPerPixel = std::min(unitsPerPixel, printed);
  wish.labels = labelChoice(unitsPerPoint);
  wish.wanted = boxFrom(DisplayTransformationHost::wholeWorld(transformation));
  wish.isPart = meanwhile && meanwhile->seen && unitsPerPixel < printed / enlarged;
  if (wish.isPart) wish.wanted = within(wish.wanted, meanwhile->seen->grown(largerSide(*meanwhile->seen) / 2));
  wish.wanted = wish.wanted.grown(reach * std::sqrt(2));  // a tile of a map that is turned stands on a corner
  wish.wanted.add(reached);
  wish.needed = wish.isPart ? reached : wish.wanted;
  ReadProgress progress;
  if (cancel) progress = [&](qint64, qint64) { return !cancel->IsCanced(); };
  auto const read = [source = source_, system = mapSystem_, renderer = renderer_, fields = labels_.read(),
                     largest = store_->knownLargest()](WindowQuery query, ReadProgress const& wanted) {
    query.largest = largest;
    return readWindow(source, system, *renderer, fields, query, wanted);
  };
  return windows_.window(wish, read, progress);
}

std::shared_ptr<FeatureStore const> VectorLayer::shownBy(DisplayTransformation const& transformation,
                                                         _ptr_t<TrackerCancel> const& cancel) const {
  if (!hasWindows()) return shared();
  Box const shown = boxFrom(DisplayTransformationHost::coveredWorld(transformation));
  double const unitsPerPixel = 1 / DisplayTransformationHost::pixelsPerUnit(transformation);
  auto const pack = window(transformation, unitsPerPixel, shown, 0, cancel);
  if (!pack) return nullptr;
  auto const places = placesForLabels(*pack, shown, markSquarePt * transformation.PixelsPerPoint() * unitsPerPixel);
  auto store = std::make_shared<FeatureStore>();
  store->takeForm(pack->form());
  pack->unpack(places.data(), places.data() + places.size(), *store);
  store->finish();
  return store;
}

// How far symbols reach is the same whatever is read: where their sizes follow features, the largest is known.
void VectorLayer::drawWindow(DrawTarget& target, DisplayTransformation const& transformation, double unitsPerPixel,
                             _ptr_t<TrackerCancel> const& cancel) {
  double const scale = transformation.GetMapScale();
  FeatureStore store;
  store.takeForm(*store_);
  double const reachPx = FeaturePasses(*renderer_, FeatureLooks(*renderer_, store, scale), target).reachPx() + 1;
  Box const area =
      boxFrom(target.toDevice().inverted().mapRect(target.area().adjusted(-reachPx, -reachPx, reachPx, reachPx)));
  auto const pack = window(transformation, unitsPerPixel, area, reachPx * unitsPerPixel, cancel);
  if (!pack) return;
  store.takeForm(pack->form());
  FeatureLooks const looks(*renderer_, store, scale);
  FeaturePasses const passes(*renderer_, looks, target);
  std::vector<Place> places = pack->query(area);
  auto const isLeftOut = [&](Place const& place) { return isHidden(place.id); };
  places.erase(std::remove_if(places.begin(), places.end(), isLeftOut), places.end());
  if (looks.isSorted()) sortForDrawing(*pack, looks, store, places);
  for (FeaturePasses::Pass const& pass : passes.passes())
    inPortions(*pack, places, store, [&](Place const*) {
      ThinnedFeatures thinned(store);
      thinned.setResolution(unitsPerPixel);
      for (int feature = 0; feature < store.size(); ++feature) {
        int const symbolClass = store.features[static_cast<size_t>(feature)].symbolClass;
        if (symbolClass < 0 || !pass[static_cast<size_t>(symbolClass)]) continue;
        pass[static_cast<size_t>(symbolClass)]->draw(thinned, feature, area);
      }
      return !cancel || !cancel->IsCanced();
    });
}

QVector<bool> VectorLayer::findClassesWithin(DisplayTransformation const& transformation, Box const& shown) const {
  double const scale = transformation.GetMapScale();
  QTransform const& turn = DisplayTransformationHost::turn(transformation);
  int const count = static_cast<int>(renderer_->classes().size());
  if (!hasWindows()) {
    FeatureLooks const looks(*renderer_, features(), scale);
    return classesOf(features().classesWithin(shown, turn, looks.drawing(), count));
  }
  std::vector<bool> found(static_cast<size_t>(count));
  Box const covered = boxFrom(DisplayTransformationHost::coveredWorld(transformation));
  double const coarsest = std::numeric_limits<double>::max();
  auto const pack = window(transformation, coarsest, covered, 0, nullptr);
  if (!pack) return classesOf(found);
  FeatureStore store;
  store.takeForm(pack->form());
  FeatureLooks const looks(*renderer_, store, scale);
  inPortions(*pack, covered, store, [&](Place const*) {
    store.finish();
    auto const here = store.classesWithin(shown, turn, looks.drawing(), count);
    std::transform(found.begin(), found.end(), here.begin(), found.begin(), std::logical_or<>());
    return std::find(found.begin(), found.end(), false) != found.end();
  });
  return classesOf(found);
}

}  // namespace SysCarto
