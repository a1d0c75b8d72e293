#include "LegendRows.h"

#include "host/SysCarto/layers/LayerHost.h"

#include <QCoreApplication>

#include <algorithm>

namespace SysCarto {

using SysDisplay::Symbol;
using SysUtility::_ptr_t;

namespace {

constexpr int maxLineLength = 80, maxWrappedLength = 400;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapSurround)
};

class RowMaker {
public:
  RowMaker(Map const& map, LegendSettings const& settings) : map_(map), settings_(settings) {
    double const scale = map.GetDisplayTransformation()->GetMapScale();
    for (auto const& layer : map.GetLayers())
      if (layer->showsAt(scale) && !settings.omitted.contains(layer->GetName())) shown_.prepend(layer);
  }

  QVector<LegendRow> rows() {
    QStringList named;
    for (LegendEntry const& entry : settings_.entries) {
      named << entry.layer << entry.with;
      for (auto const& layer : qAsConst(shown_))
        if (layer->GetName() == entry.layer) addRows(*layer, entry);
    }
    if (settings_.others == OtherLayers::After)
      for (auto const& layer : qAsConst(shown_))
        if (!named.contains(layer->GetName())) addRows(*layer, {});
    return rows_;
  }

private:
  static QString textOf(LegendClass const& one) { return one.label.isEmpty() ? Texts::tr("Other") : one.label; }

  static bool isNamed(LegendClass const& one, QStringList const& names) {
    return names.contains(one.label) || names.contains(textOf(one));
  }

  QString shortened(QString const& text) const {
    int const most = settings_.wrapPt > 0 ? maxWrappedLength : maxLineLength;
    return text.size() > most ? text.left(most - 1).trimmed() + QChar(0x2026) : text;
  }

  // A layer with one class is one line; one with several has its name above them.
  void addRows(Layer const& layer, LegendEntry const& entry) {
    QList<LegendClass> const classes = layer.legendClasses();
    QVector<int> const told = toldClasses(layer, classes, entry);
    if (told.isEmpty()) return;
    QString const name = entry.text.isEmpty() ? layer.GetName() : entry.text;
    if (classes.size() == 1) {
      bool const isOwn = entry.text.isEmpty() && !classes[0].label.isEmpty();
      rows_ << LegendRow{shortened(isOwn ? classes[0].label : name), symbolsOf(layer, classes[0], entry.with),
                         LegendRow::Layer};
      return;
    }
    rows_ << LegendRow{shortened(name), {}, LegendRow::Heading};
    for (int const one : told)
      rows_ << LegendRow{shortened(textOf(classes[one])), symbolsOf(layer, classes[one], entry.with), LegendRow::Class};
  }

  QVector<int> toldClasses(Layer const& layer, QList<LegendClass> const& classes, LegendEntry const& entry) const {
    QVector<int> told;
    for (int i = 0; i < classes.size(); ++i)
      if (!isNamed(classes[i], entry.omitted) && (entry.classes.isEmpty() || isNamed(classes[i], entry.classes)))
        told << i;
    auto const place = [&](int one) {
      int const byLabel = entry.classes.indexOf(classes[one].label);
      return byLabel >= 0 ? byLabel : entry.classes.indexOf(textOf(classes[one]));
    };
    std::stable_sort(told.begin(), told.end(), [&](int a, int b) { return place(a) < place(b); });
    if (!settings_.onMapOnly || told.isEmpty()) return told;
    QVector<bool> const within = LayerHost::classesWithin(layer, *map_.GetExtent());
    told.erase(std::remove_if(told.begin(), told.end(), [&](int one) { return !within.value(one, true); }), told.end());
    return told;
  }

  // Of a layer that is drawn with another: its class of the same label, or the only one that it has.
  QVector<_ptr_t<Symbol>> symbolsOf(Layer const& layer, LegendClass const& own, QStringList const& with) const {
    QVector<_ptr_t<Symbol>> symbols;
    for (auto other = shown_.rbegin(); other != shown_.rend(); ++other) {
      if (other->get() == &layer) {
        symbols << own.symbol;
      } else if (with.contains((*other)->GetName())) {
        QList<LegendClass> const classes = (*other)->legendClasses();
        auto const alike = std::find_if(classes.begin(), classes.end(),
                                        [&](LegendClass const& one) { return one.label == own.label; });
        if (alike != classes.end())
          symbols << alike->symbol;
        else if (classes.size() == 1)
          symbols << classes.first().symbol;
      }
    }
    symbols.erase(std::remove(symbols.begin(), symbols.end(), nullptr), symbols.end());
    return symbols;
  }

  Map const& map_;
  LegendSettings const& settings_;
  QList<_ptr_t<Layer>> shown_;  // the topmost first
  QVector<LegendRow> rows_;
};

}  // namespace

QVector<LegendRow> legendRows(Map const& map, LegendSettings const& settings) { return RowMaker(map, settings).rows(); }

}  // namespace SysCarto
