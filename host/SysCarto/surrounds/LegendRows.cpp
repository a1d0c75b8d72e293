#include "LegendRows.h"

#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>
#include <vector>

namespace SysCarto {

using SysDisplay::Symbol;
using SysUtility::_ptr_t;

namespace {

constexpr int maxLineLength = 80, maxWrappedLength = 400;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapSurround)
};

constexpr int maxRows = 10000;  // in as many columns as there may be, none of more could be read

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
    if (told.isEmpty() || rows_.size() >= maxRows) return;
    QString const name = entry.text.isEmpty() ? layer.GetName() : entry.text;
    auto const stack = stackOf(layer, entry.with);
    auto const* const vector = dynamic_cast<VectorLayer const*>(&layer);
    int const proportional = vector ? vector->proportionalClasses() : 0;
    if (classes.size() == 1 && proportional == 0) {
      bool const isOwn = entry.text.isEmpty() && !classes[0].label.isEmpty();
      rows_ << LegendRow{shortened(isOwn ? classes[0].label : name), symbolsOf(stack, classes[0]), LegendRow::Layer};
      return;
    }
    rows_ << LegendRow{shortened(name), {}, LegendRow::Heading};
    bool const isNested =
        proportional > 0 && vector->renderer().settings().proportional.shape == ProportionalSettings::Shape::Nested;
    QVector<LegendClass> nested;
    for (int const one : qAsConst(told))
      if (isNested && one < proportional) nested << LegendClass{shortened(textOf(classes[one])), classes[one].symbol};
    if (!nested.isEmpty()) rows_ << LegendRow{{}, {}, LegendRow::Nested, nested};
    for (int const one : told)
      if (rows_.size() < maxRows && (!isNested || one >= proportional))
        rows_ << LegendRow{shortened(textOf(classes[one])), symbolsOf(stack, classes[one]), LegendRow::Class};
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
    QVector<bool> const within = LayerHost::classesWithin(layer, map_.GetDisplayTransformation());
    told.erase(std::remove_if(told.begin(), told.end(), [&](int one) { return !within.value(one, true); }), told.end());
    return told;
  }

  // Of the layers whose symbols share a patch, the classes, the lowest layer first; none stands for the layer itself.
  std::vector<std::optional<QList<LegendClass>>> stackOf(Layer const& layer, QStringList const& with) const {
    std::vector<std::optional<QList<LegendClass>>> stack;
    for (auto other = shown_.rbegin(); other != shown_.rend(); ++other)
      if (other->get() == &layer)
        stack.emplace_back();
      else if (with.contains((*other)->GetName()))
        stack.emplace_back((*other)->legendClasses());
    return stack;
  }

  // Of another layer, its class of the same label, or the only one that it has.
  static QVector<_ptr_t<Symbol>> symbolsOf(std::vector<std::optional<QList<LegendClass>>> const& stack,
                                           LegendClass const& own) {
    QVector<_ptr_t<Symbol>> symbols;
    for (auto const& classes : stack) {
      LegendClass const* drawn = classes ? nullptr : &own;
      if (classes && classes->size() == 1) drawn = &classes->first();
      if (classes)
        for (LegendClass const& one : *classes)
          if (one.label == own.label) drawn = &one;
      if (drawn && drawn->symbol) symbols << drawn->symbol;
    }
    return symbols;
  }

  Map const& map_;
  LegendSettings const& settings_;
  QList<_ptr_t<Layer>> shown_;  // the topmost first
  QVector<LegendRow> rows_;
};

}  // namespace

bool LegendRow::operator==(LegendRow const& other) const {
  return text == other.text && symbols == other.symbols && kind == other.kind &&
         std::equal(nested.begin(), nested.end(), other.nested.begin(), other.nested.end(),
                    [](auto const& a, auto const& b) { return a.label == b.label && a.symbol == b.symbol; });
}

QVector<LegendRow> legendRows(Map const& map, LegendSettings const& settings) { return RowMaker(map, settings).rows(); }

}  // namespace SysCarto
