#include "Renderer.h"

#include "host/SysCarto/layers/ScaleFields.h"
#include "host/SysDisplay/SymbolFields.h"

#include <QHash>
#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::listSymbol;
using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Field;
using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

constexpr int maxClasses = 10000, maxRules = 200, maxTold = 12;
constexpr double maxMarkerPt = 1000;
constexpr double farthest = 1e300;

// clang-format off
constexpr Choice kinds[] = {
    {RendererSettings::Kind::Simple,       "simple",       QT_TRANSLATE_NOOP("Fields", "One symbol")},
    {RendererSettings::Kind::UniqueValues, "uniqueValues", QT_TRANSLATE_NOOP("Fields", "A symbol for each value")},
    {RendererSettings::Kind::Graduated,    "graduated",    QT_TRANSLATE_NOOP("Fields", "Symbols by a number")},
    {RendererSettings::Kind::Rules,        "rules",        QT_TRANSLATE_NOOP("Fields", "Symbols by rules")},
    {RendererSettings::Kind::Proportional, "proportional", QT_TRANSLATE_NOOP("Fields", "Sizes in proportion to a number")},
};
enum Match { First, All };
constexpr Choice matches[] = {
    {Match::First, "first", QT_TRANSLATE_NOOP("Fields", "The first that fits")},
    {Match::All,   "all",   QT_TRANSLATE_NOOP("Fields", "All that fit")},
};
constexpr Choice scalings[] = {
    {ProportionalSettings::Scaling::Area,     "area",     QT_TRANSLATE_NOOP("Fields", "The area")},
    {ProportionalSettings::Scaling::Flannery, "flannery", QT_TRANSLATE_NOOP("Fields", "The area as people see it (Flannery)")},
    {ProportionalSettings::Scaling::Diameter, "diameter", QT_TRANSLATE_NOOP("Fields", "The diameter")},
};
constexpr Choice shapes[] = {
    {ProportionalSettings::Shape::Nested, "nested", QT_TRANSLATE_NOOP("Fields", "One within the other")},
    {ProportionalSettings::Shape::Rows,   "rows",   QT_TRANSLATE_NOOP("Fields", "One below the other")},
};
// clang-format on

constexpr Field classesOf(char const* type) {
  return {"classes", QT_TRANSLATE_NOOP("Fields", "Classes"),
          QT_TRANSLATE_NOOP("Fields", "Features that are drawn alike."), type};
}

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Renderer)
};

constexpr Field labelNamed(char const* help) { return {"label", QT_TRANSLATE_NOOP("Fields", "Label"), help}; }

void listLabel(Fields& fields, QString& label) {
  fields.text(labelNamed(QT_TRANSLATE_NOOP("Fields", "What a legend calls the features.")), label, TextKind::Line,
              QString());
}

void listSymbolOf(Fields& fields, SymbolClass& one, bool hasVariation = true) {
  listSymbol(
      fields,
      {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"), QT_TRANSLATE_NOOP("Fields", "How the features are drawn.")},
      one.symbol);
  if (!hasVariation) return;
  fields.text(
      {"sizeBy", QT_TRANSLATE_NOOP("Fields", "Size by"),
       QT_TRANSLATE_NOOP("Fields",
                         "An expression on the attributes as in SQL, “population / 100000”, for the size of the "
                         "marker or the width of the line in points; where it has no value, the symbol keeps its "
                         "own.")},
      one.variation.size, TextKind::Condition, QString());
  fields.text({"colorBy", QT_TRANSLATE_NOOP("Fields", "Colour by"),
               QT_TRANSLATE_NOOP("Fields",
                                 "An expression for the colour, a text like #rrggbb; where it has no value, the symbol "
                                 "keeps its own.")},
              one.variation.color, TextKind::Condition, QString());
  fields.text(
      {"angleBy", QT_TRANSLATE_NOOP("Fields", "Angle by"),
       QT_TRANSLATE_NOOP("Fields",
                         "An expression for the angle of the marker in degrees counterclockwise; where it has no "
                         "value, the symbol keeps its own.")},
      one.variation.angle, TextKind::Condition, QString());
}

void listValues(Fields& fields, std::vector<SymbolClass>& classes) {
  QSet<QString> known;
  fields.list(classesOf("valueClass"), classes, maxClasses, [&](Fields& own, SymbolClass& one, int) {
    own.texts({"values", QT_TRANSLATE_NOOP("Fields", "Values"),
               QT_TRANSLATE_NOOP(
                   "Fields", "The values of the attribute that belong to the class; each belongs to one class only.")},
              one.values);
    own.derivedText(
        labelNamed(QT_TRANSLATE_NOOP("Fields", "What a legend calls the features; their values where it is missing.")),
        one.label, TextKind::Line,
        one.values.join(QLatin1String(", ")).left(SysUtility::maxCharacters(TextKind::Line)));
    listSymbolOf(own, one);
    for (QString const& value : qAsConst(one.values)) {
      if (own.isReading() && known.contains(value))
        own.fail("values", Texts::tr("“%1” is in two classes").arg(value.left(64)));
      known << value;
    }
  });
}

void listMinima(Fields& fields, std::vector<SymbolClass>& classes) {
  fields.list(classesOf("rangeClass"), classes, maxClasses, [&](Fields& own, SymbolClass& one, int index) {
    if (own.isReading() && index > 0) one.minimum = classes[index - 1].minimum + 1;  // of a class that says nothing
    own.number(
        {"minimum", QT_TRANSLATE_NOOP("Fields", "From"),
         QT_TRANSLATE_NOOP(
             "Fields",
             "The lowest number of the class, above that of the class before; it ends where the next one begins.")},
        one.minimum, {-farthest, farthest});
    listLabel(own, one.label);
    listSymbolOf(own, one);
    if (index > 0 && !(one.minimum > classes[index - 1].minimum))
      own.fail("minimum", Texts::tr("is not above that of the class before"));
  });
}

void listRules(Fields& fields, RendererSettings& settings) {
  Match match = settings.allMatch ? Match::All : Match::First;
  fields.choice<Match>({"match", QT_TRANSLATE_NOOP("Fields", "Rules that draw"),
                        QT_TRANSLATE_NOOP("Fields",
                                          "Whether a feature is drawn by the first rule that fits it and draws at the "
                                          "map's scale, or by all such rules, the first one lowest.")},
                       match, matches, Match::First);
  settings.allMatch = match == Match::All;
  fields.list({"rules", QT_TRANSLATE_NOOP("Fields", "Rules"),
               QT_TRANSLATE_NOOP("Fields", "Which features are drawn how, and at which scales."), "rule"},
              settings.classes, maxRules, [](Fields& own, SymbolClass& one, int) {
                own.text(
                    {"filter", QT_TRANSLATE_NOOP("Fields", "Filter"),
                     QT_TRANSLATE_NOOP("Fields",
                                       "A condition on the attributes as in SQL, “population > 1000000”; empty for "
                                       "all features.")},
                    one.filter, TextKind::Condition, QString());
                listLabel(own, one.label);
                listScaleRange(own, one.scales.min, one.scales.max);
                if (one.scales.min > 0 && one.scales.max > 0 && one.scales.min > one.scales.max)
                  own.fail("minScale", Texts::tr("is larger than maxScale"));
                own.flag({"legend", QT_TRANSLATE_NOOP("Fields", "In legends"),
                          QT_TRANSLATE_NOOP("Fields", "Whether legends list the rule.")},
                         one.isInLegend, true);
                listSymbolOf(own, one);
              });
}

void listProportional(Fields& fields, SymbolClass& one, ProportionalSettings& settings) {
  ProportionalSettings const usual;
  auto marker = SysUtility::ptr_cast<SysDisplay::MarkerSymbol>(one.symbol);
  listSymbol(
      fields,
      {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"),
       QT_TRANSLATE_NOOP("Fields", "The marker, in its size for the reference; it stands in areas and on lines.")},
      marker);
  one.symbol = marker;
  fields.number(
      {"reference", QT_TRANSLATE_NOOP("Fields", "Reference"),
       QT_TRANSLATE_NOOP("Fields",
                         "The number at which the marker has the size of its symbol; 0 for the largest number "
                         "of the layer.")},
      settings.reference, {0, farthest}, usual.reference);
  fields.number({"smallest", QT_TRANSLATE_NOOP("Fields", "Smallest size"),
                 QT_TRANSLATE_NOOP("Fields", "The size that no marker goes below.")},
                settings.smallestPt, {0, maxMarkerPt, SysUtility::Unit::Point}, usual.smallestPt);
  fields.choice<ProportionalSettings::Scaling>(
      {"scaling", QT_TRANSLATE_NOOP("Fields", "In proportion"),
       QT_TRANSLATE_NOOP("Fields", "What of a marker grows as the number does.")},
      settings.scaling, scalings, usual.scaling);
  fields.choice<ProportionalSettings::Shape>(
      {"legendShape", QT_TRANSLATE_NOOP("Fields", "Markers in legends"),
       QT_TRANSLATE_NOOP("Fields", "How a legend shows some sizes with their numbers.")},
      settings.shape, shapes, usual.shape);
  fields.numberList({"legendValues", QT_TRANSLATE_NOOP("Fields", "Numbers in legends"),
                     QT_TRANSLATE_NOOP("Fields", "The numbers whose sizes a legend shows; none for some round ones.")},
                    settings.told, {0, maxTold}, {0, farthest});
}

void listOthers(Fields& fields, SymbolClass& others) {
  listOptionalSymbol(fields,
                     {"defaultSymbol", QT_TRANSLATE_NOOP("Fields", "Symbol of the others"),
                      QT_TRANSLATE_NOOP("Fields",
                                        "How features are drawn that are in no class; without a symbol they "
                                        "are not.")},
                     others.symbol);
  fields.text({"defaultLabel", QT_TRANSLATE_NOOP("Fields", "Label of the others"),
               QT_TRANSLATE_NOOP("Fields", "What a legend calls features that are in no class.")},
              others.label, TextKind::Line, QString());
}

QString quoted(QString field) {
  return QLatin1Char('"') + field.replace(QLatin1Char('"'), QLatin1String("\\\"")) + QLatin1Char('"');
}

std::vector<VariedProperty> variedOf(RendererSettings const& settings, std::vector<SymbolClass> const& classes) {
  using Property = VariedProperty::Kind;
  if (settings.kind == RendererSettings::Kind::Proportional) return {{0, Property::Size, quoted(settings.field)}};
  std::vector<VariedProperty> varied;
  for (int i = 0; i < static_cast<int>(classes.size()); ++i) {
    SymbolVariation const& own = classes[i].variation;
    for (auto const& [kind, text] : {std::pair(Property::Size, own.size), std::pair(Property::Color, own.color),
                                     std::pair(Property::Angle, own.angle)})
      if (!text.isEmpty()) varied.push_back({i, kind, text});
  }
  return varied;
}

class SimpleRenderer final : public Renderer {
public:
  explicit SimpleRenderer(RendererSettings const& settings) : Renderer(settings) {}
  int classOf(QString const&, double) const override { return 0; }
};

class ProportionalRenderer final : public Renderer {
public:
  explicit ProportionalRenderer(RendererSettings const& settings) : Renderer(settings) {}
  int classOf(QString const&, double number) const override { return number > 0 ? 0 : otherClass(); }
};

class RuleRenderer final : public Renderer {
public:
  explicit RuleRenderer(RendererSettings const& settings) : Renderer(settings) {}
  int classOf(QString const&, double) const override { return otherClass(); }
};

class UniqueValuesRenderer final : public Renderer {
public:
  explicit UniqueValuesRenderer(RendererSettings const& settings) : Renderer(settings) {
    for (int i = 0; i < static_cast<int>(settings.classes.size()); ++i)
      for (QString const& value : settings.classes[i].values) classByValue_.insert(value, i);
  }
  int classOf(QString const& text, double) const override {
    return text.isNull() ? otherClass() : classByValue_.value(text, otherClass());
  }

private:
  QHash<QString, int> classByValue_;
};

class GraduatedRenderer final : public Renderer {
public:
  explicit GraduatedRenderer(RendererSettings const& settings) : Renderer(settings) {}
  int classOf(QString const&, double number) const override {
    auto const& classes = settings().classes;
    if (std::isnan(number)) return otherClass();
    auto const next = std::upper_bound(classes.begin(), classes.end(), number,
                                       [](double n, SymbolClass const& one) { return n < one.minimum; });
    return next == classes.begin() ? otherClass() : static_cast<int>(next - classes.begin()) - 1;
  }
};

}  // namespace

double ProportionalSettings::sizeOf(double number, double reference, double sizePt) const {
  constexpr double asSeen = 0.5716;  // J. J. Flannery, 1971: people take large circles for smaller than they are
  constexpr double powers[] = {0.5, asSeen, 1};
  if (!(number > 0) || !(reference > 0)) return smallestPt;
  return std::clamp(sizePt * std::pow(number / reference, powers[static_cast<int>(scaling)]), smallestPt, maxMarkerPt);
}

bool RendererSettings::classifiesAs(RendererSettings const& other) const {
  auto const isAlike = [](SymbolClass const& a, SymbolClass const& b) {
    return a.values == b.values && a.minimum == b.minimum && a.filter == b.filter && a.variation == b.variation;
  };
  return kind == other.kind && field == other.field && !others.symbol == !other.others.symbol &&
         std::equal(classes.begin(), classes.end(), other.classes.begin(), other.classes.end(), isAlike);
}

void RendererSettings::list(Fields& fields) {
  int number = static_cast<int>(kind);
  fields.variant(
      {"type", QT_TRANSLATE_NOOP("Fields", "Kind"),
       QT_TRANSLATE_NOOP("Fields",
                         "One symbol for all features, one for each value of an attribute, one for each "
                         "range of a numeric attribute, symbols by rules, or markers in sizes by a number.")},
      number, kinds, [&](int chosen) {
        kind = static_cast<Kind>(chosen);
        if (kind == Kind::Simple) {
          classes.resize(1);
          listLabel(fields, classes[0].label);
          return listSymbolOf(fields, classes[0]);
        }
        if (kind == Kind::Rules) {
          listRules(fields, *this);
          return listOthers(fields, others);
        }
        fields.filledText({"field", QT_TRANSLATE_NOOP("Fields", "Attribute"),
                           QT_TRANSLATE_NOOP("Fields", "The attribute whose value decides.")},
                          field, TextKind::Attribute);
        if (kind == Kind::Proportional) {
          classes.resize(1);
          listProportional(fields, classes[0], proportional);
        } else {
          (kind == Kind::UniqueValues ? listValues : listMinima)(fields, classes);
        }
        listOthers(fields, others);
      });
}

Renderer::Renderer(RendererSettings settings) : settings_(std::move(settings)), classes_(settings_.classes) {
  if (settings_.others.symbol) classes_.push_back(settings_.others);
  varied_ = variedOf(settings_, classes_);
}
Renderer::~Renderer() = default;

std::unique_ptr<Renderer> makeRenderer(RendererSettings const& settings) {
  switch (settings.kind) {
    case RendererSettings::Kind::UniqueValues: return std::make_unique<UniqueValuesRenderer>(settings);
    case RendererSettings::Kind::Graduated: return std::make_unique<GraduatedRenderer>(settings);
    case RendererSettings::Kind::Rules: return std::make_unique<RuleRenderer>(settings);
    case RendererSettings::Kind::Proportional: return std::make_unique<ProportionalRenderer>(settings);
    case RendererSettings::Kind::Simple: break;
  }
  return std::make_unique<SimpleRenderer>(settings);
}

std::unique_ptr<Renderer> makeSimpleRenderer(_ptr_t<SysDisplay::Symbol> const& symbol, QString const& label) {
  RendererSettings settings;
  settings.classes.push_back({label, {}, 0, symbol});
  return makeRenderer(settings);
}

QJsonObject rendererAs(QJsonObject const& renderer, QString const& kind) {
  QString const type = QStringLiteral("type"), symbol = QStringLiteral("symbol"), field = QStringLiteral("field");
  QString const others = QStringLiteral("defaultSymbol"), simple = QLatin1String(kinds[0].name);
  QJsonValue drawn = renderer.value(symbol);
  if (!drawn.isObject()) drawn = renderer.value(others);
  if (!drawn.isObject()) drawn = renderer.value(QLatin1String("classes")).toArray().at(0).toObject().value(symbol);
  if (!drawn.isObject()) drawn = renderer.value(QLatin1String("rules")).toArray().at(0).toObject().value(symbol);
  QJsonObject as{{type, kind}};
  bool const isMarker = drawn.toObject().value(type).toString().endsWith(QLatin1String("marker"), Qt::CaseInsensitive);
  bool const isProportional = kind == QLatin1String("proportional");
  if (drawn.isObject() && (!isProportional || isMarker))
    as.insert(kind == simple || isProportional ? symbol : others, drawn);
  bool const hasField = kind != simple && kind != QLatin1String("rules");
  if (hasField && renderer.contains(field)) as.insert(field, renderer.value(field));
  return as;
}

QJsonValue symbolForNewClass(QJsonObject const& renderer) {
  for (char const* const list : {"rules", "classes"}) {
    QJsonArray const classes = renderer.value(QLatin1String(list)).toArray();
    if (!classes.isEmpty()) return classes.last().toObject().value(QLatin1String("symbol"));
  }
  QJsonValue const others = renderer.value(QLatin1String("defaultSymbol"));
  return others.isObject() ? others : QJsonValue(QJsonValue::Undefined);
}

}  // namespace SysCarto
