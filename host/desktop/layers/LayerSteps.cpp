#include "LayerSteps.h"

#include "sheet/JoinKeys.h"

#include "host/SysCarto/layers/ClassCounts.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/Console.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

using SysCarto::LayerPlace;
using SysCarto::MapDocument;
using SysCarto::VectorLayer;
using SysUtility::_ptr_t;

namespace {

using Rows = LayerActions::Rows;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(LayerSteps)
};

// What is named stands between commas, a comma of a name's own after a backslash; what else there is, after the last @.
struct Named {
  QStringList names;
  QString where;

  static Named of(QString const& text, bool hasWhere) {
    static QRegularExpression const comma(QStringLiteral("(?<!\\\\),"));
    int const at = hasWhere ? text.lastIndexOf(QLatin1Char('@')) : -1;
    Named value;
    for (QString const& name : text.left(at).split(comma))
      value.names << QString(name).replace(QStringLiteral("\\,"), QStringLiteral(","));
    value.where = at < 0 ? QString() : text.mid(at + 1);
    return value;
  }
};

bool areThings(Named const& value) {
  return std::all_of(value.names.begin(), value.names.end(), [](QString const& name) {
    return name.startsWith(QLatin1String("map:")) ||
           (name.startsWith(QLatin1String("layer:")) && name.contains(QLatin1Char('/')));
  });
}
bool areLayers(QString const& text) { return areThings(Named::of(text, false)); }
bool areLayersAndMore(QString const& text) {
  Named const value = Named::of(text, true);
  return areThings(value) && !value.where.isEmpty();
}
bool areLayersPerhapsMore(QString const& text) { return areThings(Named::of(text, true)); }
bool isLayerAndNumber(QString const& text) {
  Named const value = Named::of(text, true);
  return areThings(value) && value.names.size() == 1 && value.where.toInt() > 0;
}
bool areLayersAndPlace(QString const& text) {
  return areLayersAndMore(text) && areThings({{Named::of(text, true).where}, {}});
}

QString nothingCalled(QString const& name) {
  return Texts::tr(
             "there is no \"%1\"; write layer:MAP/LAYER, where LAYER may be a group, or map:MAP; plotvane info "
             "lists them.")
      .arg(name);
}

template <class Use>
LayerOutcome with(MapDocument const& document, Named const& value, Use const& use) {
  Rows rows;
  for (QString const& name : value.names) {
    Rows const named = LayerActions::named(document, name);
    if (named.isEmpty()) return {nothingCalled(name), {}, {}};
    rows += named;
  }
  return use(rows);
}

template <LayerOutcome (*action)(Rows const&)>
LayerOutcome onRows(MapDocument const& document, QString const& text) {
  return with(document, Named::of(text, false), action);
}

// Above a layer, into a group or a map, on top there.
template <LayerOutcome (*action)(Rows const&, LayerPlace const&)>
LayerOutcome toPlace(MapDocument const& document, QString const& text) {
  Named const value = Named::of(text, true);
  return with(document, value, [&](Rows const& rows) {
    Rows const where = LayerActions::named(document, value.where);
    return where.isEmpty() ? LayerOutcome{nothingCalled(value.where), {}, {}}
                           : action(rows, LayerActions::inside(where.first()));
  });
}

LayerOutcome order(MapDocument const& document, QString const& text) {
  Named const value = Named::of(text, true);
  return with(document, value,
              [&](Rows const& rows) { return LayerActions::setOrder(rows.first(), value.where.toInt()); });
}

LayerOutcome group(MapDocument const& document, QString const& text) {
  Named const value = Named::of(text, true);
  return with(document, value, [&](Rows const& rows) { return LayerActions::group(rows, value.where); });
}

LayerOutcome zoom(MapDocument const& document, QString const& text) {
  return with(document, Named::of(text, false),
              [&](Rows const& rows) { return LayerActions::zoomTo(*document.GetPageLayout(), rows); });
}

// The file is where the program runs, as in every other step.
LayerOutcome repair(MapDocument const& document, QString const& text) {
  Named const value = Named::of(text, true);
  return with(document, value, [&](Rows const& rows) {
    return LayerActions::repair(document, rows.first(), QFileInfo(value.where).absoluteFilePath());
  });
}

// A layer and, after the colon behind it, a condition.
struct Counted {
  QString layer, condition;
  bool hasCondition;

  static Counted of(QString const& text) {
    int const colon = text.indexOf(QLatin1Char(':'), QStringLiteral("layer:").size());
    return {text.left(colon), colon < 0 ? QString() : text.mid(colon + 1), colon >= 0};
  }
};
bool isCounted(QString const& text) { return areThings({{Counted::of(text).layer}, {}}); }

_ptr_t<VectorLayer> featuresOf(Rows const& rows) {
  return rows.size() == 1 ? SysUtility::ptr_cast<VectorLayer>(rows.first().layer) : nullptr;
}

QJsonObject jsonOf(SysCarto::ClassCounts const& counts, SysCarto::RendererSettings const& renderer) {
  QJsonArray classes;
  for (size_t i = 0; i < counts.counts().size(); ++i)
    classes << QJsonObject{{QStringLiteral("label"), renderer.classes[i].label},
                           {QStringLiteral("features"), counts.counts()[i]}};
  return {{QStringLiteral("features"), counts.features()},
          {QStringLiteral("classes"), classes},
          {QStringLiteral("others"), counts.others()}};
}

// Those that meet a condition, or those of each class.
LayerOutcome countFeatures(MapDocument const& document, QString const& text) {
  constexpr int sliceMs = 100;
  Counted const value = Counted::of(text);
  return with(document, {{value.layer}, {}}, [&](Rows const& rows) {
    auto const layer = featuresOf(rows);
    if (!layer) return LayerOutcome{Texts::tr("only one layer of features can be counted."), {}, {}};
    auto const& renderer = layer->renderer().settings();
    LayerOutcome outcome;
    auto const counts = value.hasCondition
                            ? SysCarto::ClassCounts::open(layer->source(), value.condition, outcome.problem)
                            : SysCarto::ClassCounts::open(layer->source(), renderer, outcome.problem);
    if (!counts) return outcome;
    while (counts->advance(sliceMs)) continue;
    outcome.problem = counts->problem();
    if (!outcome.problem.isEmpty()) return outcome;
    QJsonObject const passing{{QStringLiteral("features"), counts->features()},
                              {QStringLiteral("passing"), counts->counts().front()}};
    Console::print(SysUtility::jsonLine(value.hasCondition ? passing : jsonOf(*counts, renderer)));
    return outcome;
  });
}

// By the keys that fit best; what finds no partner is told.
LayerOutcome joinTable(MapDocument const& document, QString const& text) {
  Named const value = Named::of(text, true);
  return with(document, value, [&](Rows const& rows) {
    auto const layer = featuresOf(rows);
    if (!layer) return LayerOutcome{Texts::tr("only one layer of features can be joined to a table."), {}, {}};
    LayerOutcome outcome{{}, rows, {}};
    auto const join = guessJoin(layer->source(), QFileInfo(value.where).absoluteFilePath(), QString(), outcome.problem);
    if (outcome.problem.isEmpty()) outcome.problem = giveJoin(document, rows.first(), join, -1, outcome.warnings);
    return outcome;
  });
}

}  // namespace

QVector<LayerStep> const& LayerStep::all() {
  auto const text = [](char const* utf8) { return QString::fromUtf8(utf8); };
  // clang-format off
  static QVector<LayerStep> const steps = {
      {text("remove"),       text("LAYER,LAYER…"),       areLayers,            onRows<LayerActions::remove>},
      {text("order"),        text("LAYER@PLACE"),        isLayerAndNumber,     order},
      {text("move"),         text("LAYER,LAYER…@WHERE"), areLayersAndPlace,    toPlace<LayerActions::move>},
      {text("copy-layer"),   text("LAYER,LAYER…@WHERE"), areLayersAndPlace,    toPlace<LayerActions::copy>},
      {text("duplicate"),    text("LAYER,LAYER…"),       areLayers,            onRows<LayerActions::duplicate>},
      {text("group"),        text("LAYER,LAYER…@NAME"),  areLayersPerhapsMore, group},
      {text("ungroup"),      text("LAYER,LAYER…"),       areLayers,            onRows<LayerActions::ungroup>},
      {text("zoom"),         text("LAYER,LAYER…"),       areLayers,            zoom},
      {text("count"),        text("LAYER:CONDITION"),    isCounted,            countFeatures},
      {text("join"),         text("LAYER@FILE"),         areLayersAndMore,     joinTable},
      {text("repair"),       text("LAYER@FILE"),         areLayersAndMore,     repair},
  };
  // clang-format on
  return steps;
}
