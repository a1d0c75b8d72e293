#include "FieldChoice.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int maxClasses = 8;

// The place of the first of the patterns that the name of a field matches as a whole; −1 for none. In English and in
// the languages of data that people have.
int placeOf(QString const& name, std::initializer_list<char const*> patterns) {
  int place = 0;
  for (char const* pattern : patterns) {
    QRegularExpression const whole(QStringLiteral("^(?:%1)$").arg(QLatin1String(pattern)),
                                   QRegularExpression::CaseInsensitiveOption);
    if (whole.match(name).hasMatch()) return place;
    ++place;
  }
  return -1;
}

template <class Suits>
FieldSurvey const* firstOf(LayerSurvey const& layer, std::initializer_list<char const*> patterns, Suits const& suits) {
  FieldSurvey const* best = nullptr;
  int bestPlace = static_cast<int>(patterns.size());
  for (FieldSurvey const& field : layer.fields) {
    int const place = placeOf(field.name, patterns);
    if (place >= 0 && place < bestPlace && suits(field)) best = &field, bestPlace = place;
  }
  return best;
}

bool hasLetters(FieldSurvey const& field, double part = 0.6) { return field.letters > part * field.length; }
double meanLength(FieldSurvey const& field) { return field.given > 0 ? double(field.length) / field.given : 0; }

bool looksLikeNames(FieldSurvey const& field, LayerSurvey const& layer, double letters = 0.6) {
  return field.isText() && hasLetters(field, letters) && meanLength(field) >= 2 && meanLength(field) <= 40 &&
         (field.distinct() > 1 || layer.count == 1);
}

}  // namespace

FieldSurvey const* nameField(LayerSurvey const& layer) {
  auto const* const named = firstOf(
      layer,
      {"name", "name_en", "name_int", "name_long", "nam|nom|nombre|nome|naam|navn|namn|nazwa|nimi",
       "label|title|titel|titre|bezeichnung|bez", ".*name", "name.*|nam_.*|nom_.*",
       "city|town|village|place|ort|stadt|gemeinde|ville|commune|municipality",
       "street|strasse|stra..?e|road|rue|calle", "admin|state|country|county|province|region|land",
       "station.*|site|standort|nr|number"},
      [&](FieldSurvey const& field) { return looksLikeNames(field, layer, 0.15) && field.given * 10 > layer.count; });
  if (named) return named;
  for (FieldSurvey const& field : layer.fields)
    if (looksLikeNames(field, layer) && field.distinct() * 10 > field.given * 8 && field.given * 2 > layer.count &&
        meanLength(field) >= 4 &&
        placeOf(field.name, {".*(id|code|iso.*|url|wiki.*|source|desc.*|cmt|link.*|time.*)"}) < 0)
      return &field;
  return nullptr;
}

FieldSurvey const* sizeField(LayerSurvey const& layer) {
  return firstOf(
      layer,
      {"pop|population", "pop_?max|pop_?est|pop.*|population.*", "einwohner.*|ewz|habitants|inhabitants|inwoners",
       "mag|magnitude", "capacity|kapazit..?t|visitors|besucher|count|anzahl|total|value|wert", "area.*|fl.*che"},
      [](FieldSurvey const& field) { return field.isNumber() && field.minimum >= 0 && field.maximum > field.minimum; });
}

FieldSurvey const* classField(LayerSurvey const& layer) {
  FieldSurvey const* const names = nameField(layer);
  auto const isKind = [&](FieldSurvey const& field) {
    return &field != names && !field.hasMoreValues && field.distinct() >= 2 && field.given * 10 >= layer.count * 8 &&
           (field.isText() || field.kind == SysCarto::FieldDescription::Kind::Integer);
  };
  auto const* const named = firstOf(
      layer,
      {"highway|waterway|railway|landuse|natural", "fclass|class|klasse", "type|typ|kind|category|kategorie|art",
       ".*(type|typ|class|kind|category|status|zone|nutzung|art)", "group|gruppe|continent|subregion|use"},
      [&](FieldSurvey const& field) { return isKind(field) && field.distinct() <= 3 * maxClasses; });
  if (named) return named;
  for (FieldSurvey const& field : layer.fields)
    if (isKind(field) && field.isText() && hasLetters(field) && field.distinct() <= maxClasses &&
        layer.count >= 4 * field.distinct())
      return &field;
  return nullptr;
}

FieldSurvey const* rateField(LayerSurvey const& layer) {
  return firstOf(
      layer,
      {".*densit.*|.*dichte.*", ".*(rate|share|percent|pct|prozent|anteil|quote|index|ratio|median|mean|average|avg).*",
       ".*_per_.*|.*_km2|.*per_?capita.*"},
      [&](FieldSurvey const& field) {
        return field.isNumber() && field.distinct() >= 5 && field.given * 2 > layer.count;
      });
}
