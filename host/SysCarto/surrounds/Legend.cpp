#include "LegendLayout.h"
#include "SurroundSettings.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurround.h>

#include <QCoreApplication>

namespace SysCarto {

using SysDisplay::TextFormat;
using SysDisplay::TextSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr int maxLabelLength = 80;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapSurround)
};

_ptr_t<TextSymbol> usual(_ptr_t<TextSymbol> const& chosen, double sizePt, bool bold) {
  TextFormat format;
  format.size = sizePt;
  format.bold = bold;
  if (chosen) format = chosen->format();
  format.horizontal = SysDisplay::HorizontalAlignment::Left;
  format.vertical = SysDisplay::VerticalAlignment::Top;
  return make<TextSymbol>(format);
}

QString shortened(QString const& label) {
  return label.size() > maxLabelLength ? label.left(maxLabelLength - 1).trimmed() + QChar(0x2026) : label;
}

}  // namespace

struct Legend::Private {
  LegendSettings settings;

  // A layer with one class is one entry; one with several has its name above them.
  void addRows(Layer const& layer, QVector<LegendRow>& rows) const {
    QList<LegendClass> const classes = layer.legendClasses();
    if (classes.size() > 1) rows << LegendRow{shortened(layer.GetName()), nullptr, LegendRow::Heading};
    for (LegendClass const& one : classes) {
      QString const otherwise = classes.size() > 1 ? Texts::tr("Other") : layer.GetName();
      rows << LegendRow{shortened(one.label.isEmpty() ? otherwise : one.label), one.symbol,
                        classes.size() > 1 ? LegendRow::Class : LegendRow::Layer};
    }
  }
};

Legend::Legend() : MapSurround(SurroundKind::Legend), d(std::make_unique<Private>()) {}
Legend::Legend(Legend const& other) : MapSurround(other), d(std::make_unique<Private>(*other.d)) {}
Legend::~Legend() = default;

QList<_ptr_t<Element>> Legend::GetElements() {
  if (!hasPlace()) return {};
  auto const& layers = GetMap()->GetLayers();
  double const scale = GetMap()->GetDisplayTransformation()->GetMapScale();
  QVector<LegendRow> rows;
  for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer)
    if ((*layer)->showsAt(scale) && !d->settings.omitted.contains((*layer)->GetName())) d->addRows(**layer, rows);
  if (rows.isEmpty()) return {};
  LegendLayout layout({usual(d->settings.titleSymbol, 12, true), usual(d->settings.headingSymbol, 9, true),
                       usual(d->settings.labelSymbol, 8, false)});
  return layout.elements(d->settings.title, rows, rectangle());
}

_ptr_t<MapSurround> Legend::Clone() const { return make<Legend>(*this); }
QString Legend::title() const { return Texts::tr("Legend"); }

LegendSettings LegendSettings::of(Legend const& legend) { return legend.d->settings; }
void LegendSettings::applyTo(Legend& legend) const { legend.d->settings = *this; }

}  // namespace SysCarto
