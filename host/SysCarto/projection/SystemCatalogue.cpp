#include "SystemCatalogue.h"

#include "host/SysCarto/projection/Offline.h"

#include <QStringList>

#include <proj.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <future>

namespace SysCarto {

namespace {

// What people call some systems, beside their names; and what is asked for more often than others of its kind.
struct Familiar {
  char const* code;
  char const* words;
};
constexpr Familiar familiar[] = {
    {"EPSG:4326", "longitude latitude lon lat gps degrees geographic"},
    {"EPSG:3857", "web mercator spherical"},
    {"EPSG:8857", "world"},
    {"EPSG:3395", "world"},
    {"EPSG:3035", "equal area europe"},
    {"EPSG:3034", "conformal conic lambert europe"},
    {"EPSG:4258", "longitude latitude degrees geographic"},
    {"EPSG:4269", "longitude latitude degrees geographic"},
    {"EPSG:2056", "switzerland swiss"},
    {"EPSG:2154", "lambert93 france"},
    {"EPSG:2180", "poland"},
    {"EPSG:2193", "zealand"},
    {"EPSG:3006", "sweden"},
    {"EPSG:3031", "south pole"},
    {"EPSG:3067", "finland"},
    {"EPSG:3413", "north pole"},
    {"EPSG:5070", "albers equal area usa states"},
    {"EPSG:25832", "germany denmark"},
    {"EPSG:27700", "osgb bng uk britain kingdom"},
    {"EPSG:28992", "netherlands"},
    {"EPSG:31287", "lambert austria"},
    {"ESRI:54009", ""},
    {"ESRI:54030", ""},
};

// Points of a match. A word counts once, where it matches best.
enum : int {
  wholeCode = 100,
  wholeWordOfName = 60,
  numberOfName = 55,
  wholeAlias = 60,
  authority = 30,
  startsWordOfName = 40,
  withinName = 25,
  startsCode = 20,
  wholeWordOfArea = 20,
  startsWordOfArea = 12,
  withinArea = 6,
  ofSmallArea = 120,  // shared among the words of the area, and a few more
  fewWords = 3,
  wholePhrase = 15,
  wholeName = 40,
  holdsExtent = 12,
  isFamiliar = 10,
  isOld = -40,
};

struct Preference {
  char const* start;
  int points;
};
constexpr Preference authorities[] = {{"EPSG", 8}, {"OGC", 2}, {"ESRI", 4}, {"IGNF", -10}, {"IAU", -20}};
constexpr Preference datums[] = {{"WGS 84", 6}, {"ETRS89", 4}, {"NAD83", 3}, {"GDA2020", 3}, {"World", 3}};

template <std::size_t count>
int pointsOf(Preference const (&table)[count], QString const& text) {
  for (Preference const& row : table)
    if (text.startsWith(QLatin1String(row.start))) return row.points;
  return 0;
}

// Small letters without accents and digits, one blank before each word and one at the end.
QString plain(QString const& text) {
  QString words(QLatin1Char(' '));
  for (QChar const c : text.normalized(QString::NormalizationForm_KD).toLower()) {
    if (c.isLetterOrNumber())
      words += c;
    else if (!c.isMark() && !words.endsWith(QLatin1Char(' ')))
      words += QLatin1Char(' ');
  }
  if (!words.endsWith(QLatin1Char(' '))) words += QLatin1Char(' ');
  return words;
}

enum class Match { None, Within, Starts, Number, Whole };

// “33” is the number of “33n”, and nothing of “330”.
Match matchOf(QString const& text, QString const& word) {
  Match best = Match::None;
  bool const isNumber = word.back().isDigit();
  for (int at = text.indexOf(word); at >= 0; at = text.indexOf(word, at + 1)) {
    QChar const before = text.at(at - 1), after = text.at(at + word.size());
    bool const starts = before == QLatin1Char(' ');
    bool const cutsNumber = isNumber && (after.isDigit() || (word.front().isDigit() && before.isDigit()));
    Match const match = starts && after == QLatin1Char(' ') ? Match::Whole
                        : cutsNumber                        ? Match::None
                        : starts && isNumber                ? Match::Number
                        : starts                            ? Match::Starts
                                                            : Match::Within;
    best = std::max(best, match);
    if (best == Match::Whole) break;
  }
  return best;
}

// Where digits follow a letter: “utm33” is two words to many.
int seamOf(QString const& word) {
  for (int i = 1; i < word.size(); ++i)
    if (word.at(i).isDigit() && !word.at(i - 1).isDigit()) return i;
  return 0;
}

std::atomic<bool> isCatalogueRead{false};

bool isNamed(QString const& authority) {
  static QStringList const known{QStringLiteral("EPSG"), QStringLiteral("ESRI"), QStringLiteral("IGNF"),
                                 QStringLiteral("OGC")};
  return known.contains(authority) || authority.startsWith(QLatin1String("IAU_20"));
}

}  // namespace

struct SystemCatalogue::Texts {
  QString code, authority, name, area, alias;
  int nameWords = 0, areaWords = 0;
  int prior = 0;  // what is likely without a word

  int pointsFor(QString const& word) const;
};

int SystemCatalogue::Texts::pointsFor(QString const& word) const {
  static constexpr std::array<int, 5> ofName{0, withinName, startsWordOfName, numberOfName, wholeWordOfName};
  static constexpr std::array<int, 5> ofArea{0, withinArea, startsWordOfArea, startsWordOfArea, wholeWordOfArea};
  int best = code == word ? wholeCode : code.startsWith(word) ? startsCode : 0;
  if (authority == word) best = std::max<int>(best, SysCarto::authority);
  best = std::max(best, ofName[static_cast<size_t>(matchOf(name, word))]);
  if (!alias.isEmpty() && matchOf(alias, word) == Match::Whole) best = std::max<int>(best, wholeAlias);
  int const inArea = best < wholeWordOfName ? ofArea[static_cast<size_t>(matchOf(area, word))] : 0;
  if (inArea > 0) best = std::max(best, inArea + ofSmallArea / (areaWords + fewWords));
  if (best > 0) return best;
  int const seam = seamOf(word);
  if (seam == 0) return 0;
  int const before = pointsFor(word.left(seam)), after = pointsFor(word.mid(seam));
  return before > 0 && after > 0 ? (before + after) / 2 : 0;
}

SystemCatalogue const& SystemCatalogue::instance() {
  static SystemCatalogue const catalogue;
  return catalogue;
}

// The thread reads a database that nobody writes, into what nobody else has yet.
void SystemCatalogue::readAhead() {
  static std::future<void> const reading = std::async(std::launch::async, [] { instance(); });
}

bool SystemCatalogue::isRead() { return isCatalogueRead; }

SystemCatalogue::SystemCatalogue() {
  stayOffline();
  read();
  index();
  isCatalogueRead = true;
}

SystemCatalogue::~SystemCatalogue() = default;

void SystemCatalogue::read() {
  std::unique_ptr<PJ_CONTEXT, decltype(&proj_context_destroy)> const context(proj_context_create(),
                                                                             proj_context_destroy);
  proj_context_set_enable_network(context.get(), 0);
  std::unique_ptr<PROJ_CRS_LIST_PARAMETERS, decltype(&proj_get_crs_list_parameters_destroy)> const wanted(
      proj_get_crs_list_parameters_create(), proj_get_crs_list_parameters_destroy);
  static constexpr PJ_TYPE types[] = {PJ_TYPE_GEOGRAPHIC_2D_CRS, PJ_TYPE_PROJECTED_CRS};
  wanted->types = types;
  wanted->typesCount = std::size(types);
  wanted->allow_deprecated = 1;
  int count = 0;
  std::unique_ptr<PROJ_CRS_INFO*, decltype(&proj_crs_info_list_destroy)> const list(
      proj_get_crs_info_list_from_database(context.get(), nullptr, wanted.get(), &count), proj_crs_info_list_destroy);
  for (int i = 0; i < count; ++i) {
    PROJ_CRS_INFO const& one = *list.get()[i];
    QString const authority = QString::fromUtf8(one.auth_name);
    if (!isNamed(authority)) continue;
    GlobeBox use;
    bool const isOfEarth = !one.celestial_body_name || qstrcmp(one.celestial_body_name, "Earth") == 0;
    if (one.bbox_valid && isOfEarth)
      use = {one.west_lon_degree, one.south_lat_degree, one.east_lon_degree, one.north_lat_degree};
    systems_.push_back({authority + QLatin1Char(':') + QString::fromUtf8(one.code), QString::fromUtf8(one.name),
                        QString::fromUtf8(one.area_name), use, one.type == PJ_TYPE_GEOGRAPHIC_2D_CRS,
                        one.deprecated != 0});
  }
  std::sort(systems_.begin(), systems_.end(),
            [](KnownSystem const& a, KnownSystem const& b) { return a.code < b.code; });
}

void SystemCatalogue::index() {
  texts_.reserve(systems_.size());
  for (KnownSystem const& system : systems_) {
    Texts texts;
    texts.authority = system.code.section(QLatin1Char(':'), 0, 0).toLower();
    texts.code = system.code.section(QLatin1Char(':'), 1).toLower();
    texts.name = plain(system.name);
    texts.area = plain(system.area);
    texts.nameWords = texts.name.count(QLatin1Char(' ')) - 1;
    texts.areaWords = texts.area.count(QLatin1Char(' ')) - 1;
    texts.prior = pointsOf(authorities, system.code) + pointsOf(datums, system.name) - texts.nameWords;
    if (system.isDeprecated) texts.prior += isOld;
    for (Familiar const& one : familiar) {
      if (system.code != QLatin1String(one.code)) continue;
      texts.prior += isFamiliar;
      texts.alias = plain(QLatin1String(one.words));
    }
    texts_.push_back(texts);
  }
}

KnownSystem const* SystemCatalogue::find(QString const& code) const {
  auto const found = std::find_if(systems_.begin(), systems_.end(), [&](KnownSystem const& system) {
    return system.code.compare(code, Qt::CaseInsensitive) == 0;
  });
  return found == systems_.end() ? nullptr : &*found;
}

std::vector<int> SystemCatalogue::search(SystemQuery const& query) const {
  QString const phrase = plain(query.words);
  QStringList const words = phrase.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  struct Found {
    int number;
    int points;
  };
  std::vector<Found> found;
  for (int i = 0; i < static_cast<int>(systems_.size()); ++i) {
    KnownSystem const& system = systems_[i];
    Texts const& texts = texts_[i];
    if (system.isDeprecated && !query.hasDeprecated) continue;
    if (query.kind != SystemQuery::Kind::Any && (query.kind == SystemQuery::Kind::Geographic) != system.isGeographic)
      continue;
    int points = texts.prior;
    bool const matches = std::all_of(words.begin(), words.end(), [&](QString const& word) {
      int const own = texts.pointsFor(word);
      points += own;
      return own > 0;
    });
    if (!matches) continue;
    if (system.use.contains(query.extent)) points += holdsExtent;
    if (!words.isEmpty() && texts.name == phrase) points += wholeName;
    if (words.size() > 1 && texts.name.contains(phrase)) points += wholePhrase;
    found.push_back({i, points});
  }
  std::stable_sort(found.begin(), found.end(), [](Found const& a, Found const& b) { return a.points > b.points; });
  std::vector<int> numbers;
  numbers.reserve(found.size());
  for (Found const& one : found) numbers.push_back(one.number);
  return numbers;
}

}  // namespace SysCarto
