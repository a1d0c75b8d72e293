#include "LayerClasses.h"

#include "ClassifyDialog.h"

#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysUtility/JsonFields.h"

#include <algorithm>
#include <functional>

using SysCarto::ClassifySettings;
using SysCarto::Editable;

namespace {

using Method = ClassifySettings::Method;

bool areNumbers(QStringList const& texts, std::vector<double>& numbers) {
  bool ok = !texts.isEmpty();
  numbers.clear();
  for (QString const& text : texts) {
    bool isNumber = false;
    numbers.push_back(text.trimmed().toDouble(&isNumber));
    ok = ok && isNumber;
  }
  return ok;
}

struct Option {
  char const* name;
  char const* form;
  bool (*take)(QString const& value, ClassifySettings& settings);
};

// clang-format off
constexpr Option options[] = {
    {"classes", "classes=7", [](QString const& value, ClassifySettings& settings) {
       bool ok = false;
       settings.classes = value.toInt(&ok);
       return ok;
     }},
    {"ramp", "ramp=YlGnBu", [](QString const& value, ClassifySettings& settings) {
       settings.ramp = value;
       return !value.isEmpty();
     }},
    {"reversed", "reversed", [](QString const& value, ClassifySettings& settings) {
       settings.reversed = true;
       return value.isNull();
     }},
    {"sorted", "sorted", [](QString const& value, ClassifySettings& settings) {
       settings.inOrder = true;
       return value.isNull();
     }},
    {"sizes", "sizes=4-20", [](QString const& value, ClassifySettings& settings) {
       std::vector<double> numbers;
       if (!areNumbers(value.split(QLatin1Char('-')), numbers) || numbers.size() != 2) return false;
       settings.sized = true;
       settings.from = numbers[0];
       settings.to = numbers[1];
       return settings.from > 0 && settings.to > 0 && std::max(settings.from, settings.to) <= 1000;
     }},
    {"breaks", "breaks=10;100", [](QString const& value, ClassifySettings& settings) {
       return areNumbers(value.split(QLatin1Char(';')), settings.breaks);
     }},
};
// clang-format on

}  // namespace

QString LayerClasses::read(QString const& text, ClassifySettings& settings) {
  QStringList words = text.split(QLatin1Char(','));
  auto const method = ClassifySettings::methodOf(words.takeFirst());
  if (!method) return tr("the method is one of %1").arg(ClassifySettings::methodNames().join(QStringLiteral(", ")));
  settings.method = *method;
  if (*method == Method::UniqueValues) settings.classes = ClassifySettings::maxValues;
  for (QString const& word : qAsConst(words)) {
    int const sign = word.indexOf(QLatin1Char('='));
    QString const name = word.left(sign), value = sign < 0 ? QString() : word.mid(sign + 1);
    auto const option = std::find_if(std::begin(options), std::end(options),
                                     [&](Option const& one) { return name == QLatin1String(one.name); });
    QStringList forms;
    for (Option const& one : options) forms << QLatin1String(one.form);
    if (option == std::end(options))
      return tr("“%1” is no option; there are %2").arg(word, forms.join(QStringLiteral(", ")));
    if (!option->take(value, settings)) return tr("“%1” is written as in %2").arg(word, QLatin1String(option->form));
  }
  if (*method == Method::OwnBreaks && settings.breaks.empty())
    return tr("the method “own” needs breaks, as in breaks=10;100");
  if (std::adjacent_find(settings.breaks.begin(), settings.breaks.end(), std::greater_equal<>()) !=
      settings.breaks.end())
    return tr("each of the breaks is larger than the one before, as in breaks=10;100");
  return QString();
}

QString LayerClasses::give(SysCarto::MapDocument const& document, Editable::Pointer const& layer,
                           SysCarto::RendererSettings const& renderer, QStringList& warnings) {
  SysCarto::RendererSettings written = renderer;
  SysUtility::JsonWriter writer;
  written.list(writer);
  QString problem = writer.error();
  if (problem.isEmpty())
    problem = Editable::set(
        document, {layer}, {QStringLiteral("renderer")}, [json = writer.json()](QJsonValue const&) { return json; },
        warnings);
  return problem.isEmpty() ? problem : problem + QLatin1Char('.');
}

QString LayerClasses::make(SysCarto::MapDocument const& document, Editable::Pointer const& thing,
                           ClassifySettings const& wanted, QStringList& warnings) {
  auto const layer = SysUtility::ptr_cast<SysCarto::VectorLayer>(thing->layer());
  if (!layer) return tr("Only a layer of features has classes; write layer:MAP/LAYER.");
  auto const values = SysCarto::readValues(layer->source(), wanted.field);
  auto const classes = classify(values, layer->renderer().settings(), wanted);
  if (!classes.problem.isEmpty()) return classes.problem;
  return give(document, thing, classes.renderer, warnings);
}

QString LayerClasses::ask(SysCarto::MapDocument const& document, Editable::Pointer const& thing, QWidget* parent) {
  auto const layer = thing ? SysUtility::ptr_cast<SysCarto::VectorLayer>(thing->layer()) : nullptr;
  if (!layer) return QString();
  ClassifyDialog dialog(layer, parent);
  if (dialog.exec() != QDialog::Accepted) return QString();
  QStringList warnings;
  QString const problem = give(document, thing, dialog.renderer(), warnings);
  return problem.isEmpty() ? warnings.join(QLatin1Char('\n')) : problem;
}
