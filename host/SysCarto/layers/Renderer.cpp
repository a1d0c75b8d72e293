#include "Renderer.h"

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

constexpr int maxClasses = 10000;
constexpr double farthest = 1e300;

// clang-format off
constexpr Choice kinds[] = {
    {RendererSettings::Kind::Simple,       "simple",       QT_TRANSLATE_NOOP("Fields", "One symbol")},
    {RendererSettings::Kind::UniqueValues, "uniqueValues", QT_TRANSLATE_NOOP("Fields", "A symbol for each value")},
    {RendererSettings::Kind::Graduated,    "graduated",    QT_TRANSLATE_NOOP("Fields", "Symbols by a number")},
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

void listSymbolOf(Fields& fields, SymbolClass& one) {
  listSymbol(
      fields,
      {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"), QT_TRANSLATE_NOOP("Fields", "How the features are drawn.")},
      one.symbol);
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

class SimpleRenderer final : public Renderer {
public:
  explicit SimpleRenderer(RendererSettings const& settings) : Renderer(settings) {}
  int classOf(QString const&, double) const override { return 0; }
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

bool RendererSettings::classifiesAs(RendererSettings const& other) const {
  auto const isAlike = [](SymbolClass const& a, SymbolClass const& b) {
    return a.values == b.values && a.minimum == b.minimum;
  };
  return kind == other.kind && field == other.field && !others.symbol == !other.others.symbol &&
         std::equal(classes.begin(), classes.end(), other.classes.begin(), other.classes.end(), isAlike);
}

void RendererSettings::list(Fields& fields) {
  int number = static_cast<int>(kind);
  fields.variant({"type", QT_TRANSLATE_NOOP("Fields", "Kind"),
                  QT_TRANSLATE_NOOP("Fields",
                                    "One symbol for all features, one for each value of an attribute, or one for each "
                                    "range of a numeric attribute.")},
                 number, kinds, [&](int chosen) {
                   kind = static_cast<Kind>(chosen);
                   if (kind == Kind::Simple) {
                     classes.resize(1);
                     listLabel(fields, classes[0].label);
                     return listSymbolOf(fields, classes[0]);
                   }
                   fields.filledText({"field", QT_TRANSLATE_NOOP("Fields", "Attribute"),
                                      QT_TRANSLATE_NOOP("Fields", "The attribute whose value decides.")},
                                     field, TextKind::Attribute);
                   (kind == Kind::UniqueValues ? listValues : listMinima)(fields, classes);
                   listOthers(fields, others);
                 });
}

Renderer::Renderer(RendererSettings settings) : settings_(std::move(settings)), classes_(settings_.classes) {
  if (settings_.others.symbol) classes_.push_back(settings_.others);
}
Renderer::~Renderer() = default;

std::unique_ptr<Renderer> makeRenderer(RendererSettings const& settings) {
  switch (settings.kind) {
    case RendererSettings::Kind::UniqueValues: return std::make_unique<UniqueValuesRenderer>(settings);
    case RendererSettings::Kind::Graduated: return std::make_unique<GraduatedRenderer>(settings);
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
  QJsonObject as{{type, kind}};
  if (drawn.isObject()) as.insert(kind == simple ? symbol : others, drawn);
  if (kind != simple && renderer.contains(field)) as.insert(field, renderer.value(field));
  return as;
}

}  // namespace SysCarto
