#include "LayerSteps.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using SysCarto::LayerPlace;
using SysCarto::MapDocument;

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
      {text("repair"),       text("LAYER@FILE"),         areLayersAndMore,     repair},
  };
  // clang-format on
  return steps;
}
