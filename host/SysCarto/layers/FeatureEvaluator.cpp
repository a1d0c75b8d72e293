#include "FeatureEvaluator.h"

#include <QColor>
#include <QCoreApplication>

#include <limits>

namespace SysCarto {

namespace {

constexpr int maxShown = 100;  // characters of an expression in a message

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(FeatureEvaluator)
};

QString sentenceFor(VariedProperty::Kind kind) {
  switch (kind) {
    case VariedProperty::Kind::Size:
      return Texts::tr("The size “%1” of %2 is not understood, so symbols keep their own: %3.");
    case VariedProperty::Kind::Color:
      return Texts::tr("The colour “%1” of %2 is not understood, so symbols keep their own: %3.");
    case VariedProperty::Kind::Angle: break;
  }
  return Texts::tr("The angle “%1” of %2 is not understood, so symbols keep their own: %3.");
}

}  // namespace

FeatureEvaluator::FeatureEvaluator(OGRLayer& layer, Renderer const& renderer, QString const& source,
                                   QStringList& warnings)
    : renderer_(renderer), isNeeded_(hasRules() || !renderer.varied().empty()) {
  if (!isNeeded_) return;
  QStringList again;
  tools_.fill([&](unsigned i) { return make(layer, source, i == 0 ? warnings : again); });
}

std::unique_ptr<FeatureEvaluator::Tools> FeatureEvaluator::make(OGRLayer& layer, QString const& source,
                                                                QStringList& warnings) const {
  auto tools = std::make_unique<Tools>();
  QString reason;
  auto const& rules = renderer_.settings().classes;
  for (int i = 0; hasRules() && i < static_cast<int>(rules.size()); ++i) {
    Condition condition;
    if (condition.compile(layer, rules[i].filter, reason))
      tools->rules.emplace_back(i, std::move(condition));
    else
      warnings << Texts::tr("The filter “%1” of rule %2 of %3 is not understood, so that the rule fits nothing: %4.")
                      .arg(rules[i].filter.left(maxShown), QString::number(i + 1), source, reason);
  }
  for (VariedProperty const& property : renderer_.varied()) {
    tools->varied.emplace_back();
    if (!tools->varied.back().compile(layer, property.expression, reason))
      warnings << sentenceFor(property.kind).arg(property.expression.left(maxShown), source, reason);
  }
  return tools;
}

double FeatureEvaluator::valueOf(VariedProperty const& property, Expression const& expression, OGRFeature& feature) {
  if (property.kind != VariedProperty::Kind::Color) return expression.number(feature);
  QColor const color(expression.text(feature));
  return color.isValid() ? color.rgba() : std::numeric_limits<double>::quiet_NaN();
}

int FeatureEvaluator::place(OGRFeature& feature, FeatureStore& store) const {
  if (!isNeeded_) return -1;
  std::vector<int> fitting;
  tools_.use([&](Tools const& tools) {
    for (auto const& [rule, condition] : tools.rules)
      if (condition.admits(feature)) fitting.push_back(rule);
    for (size_t i = 0; i < tools.varied.size(); ++i)
      store.addValue(valueOf(renderer_.varied()[i], tools.varied[i], feature));
  });
  if (!hasRules()) return -1;
  if (fitting.empty() && renderer_.classes().size() > renderer_.settings().classes.size())
    fitting.push_back(static_cast<int>(renderer_.settings().classes.size()));
  return store.classSetOf(fitting);
}

}  // namespace SysCarto
