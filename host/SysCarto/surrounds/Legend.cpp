#include "LegendLayout.h"
#include "SurroundSettings.h"

#include "host/SysGeometry/Box.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurround.h>

#include <QCoreApplication>

namespace SysCarto {

using SysDisplay::TextFormat;
using SysDisplay::TextSymbol;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

_ptr_t<TextSymbol> usual(_ptr_t<TextSymbol> const& chosen, double sizePt, bool bold) {
  TextFormat format;
  format.size = sizePt;
  format.bold = bold;
  if (chosen) format = chosen->format();
  format.horizontal = SysDisplay::HorizontalAlignment::Left;
  format.vertical = SysDisplay::VerticalAlignment::Top;
  return make<TextSymbol>(format);
}

QList<_ptr_t<Element>> copies(QList<_ptr_t<Element>> const& pieces) {
  QList<_ptr_t<Element>> own;
  for (auto const& piece : pieces) own << piece->Clone();
  return own;
}

}  // namespace

struct Legend::Private {
  LegendSettings settings;

  // As it was laid out last: it is asked for at each redraw and for each tile, and rarely has anything changed.
  QVector<LegendRow> rows;
  SysGeometry::Box area;
  QList<_ptr_t<Element>> pieces;

  Private() = default;
  Private(Private const& other) : settings(other.settings) {}
};

Legend::Legend() : MapSurround(SurroundKind::Legend), d(std::make_unique<Private>()) {}
Legend::Legend(Legend const& other) : MapSurround(other), d(std::make_unique<Private>(*other.d)) {}
Legend::~Legend() = default;

QList<_ptr_t<Element>> Legend::GetElements() {
  if (!hasPlace()) return {};
  LegendSettings const& settings = d->settings;
  QVector<LegendRow> const rows = legendRows(*GetMap(), settings);
  if (rows.isEmpty()) return {};
  auto const rectangle = this->rectangle();
  SysGeometry::Box const area{rectangle.GetXMin(), rectangle.GetYMin(), rectangle.GetXMax(), rectangle.GetYMax()};
  bool const isSame = area.contains(d->area) && d->area.contains(area) && rows == d->rows;
  if (isSame) return copies(d->pieces);
  LegendLayout layout({{usual(settings.titleSymbol, 12, true), usual(settings.headingSymbol, 9, true),
                        usual(settings.labelSymbol, 8, false)},
                       settings.patch,
                       settings.columns,
                       settings.wrapPt});
  d->pieces = layout.elements(settings.title, rows, rectangle);
  d->rows = rows;
  d->area = area;
  return copies(d->pieces);
}

_ptr_t<MapSurround> Legend::Clone() const { return make<Legend>(*this); }
QString Legend::title() const { return QCoreApplication::translate("MapSurround", "Legend"); }

LegendSettings LegendSettings::of(Legend const& legend) { return legend.d->settings; }
void LegendSettings::applyTo(Legend& legend) const {
  legend.d->settings = *this;
  legend.d->rows.clear();
}

}  // namespace SysCarto
