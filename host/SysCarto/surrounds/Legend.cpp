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

_ptr_t<TextSymbol> usual(_ptr_t<TextSymbol> const& chosen, double sizePt, bool bold) {
  TextFormat format;
  format.size = sizePt;
  format.bold = bold;
  if (chosen) format = chosen->format();
  format.horizontal = SysDisplay::HorizontalAlignment::Left;
  format.vertical = SysDisplay::VerticalAlignment::Top;
  return make<TextSymbol>(format);
}

}  // namespace

struct Legend::Private {
  LegendSettings settings;
};

Legend::Legend() : MapSurround(SurroundKind::Legend), d(std::make_unique<Private>()) {}
Legend::Legend(Legend const& other) : MapSurround(other), d(std::make_unique<Private>(*other.d)) {}
Legend::~Legend() = default;

QList<_ptr_t<Element>> Legend::GetElements() {
  if (!hasPlace()) return {};
  LegendSettings const& settings = d->settings;
  QVector<LegendRow> const rows = legendRows(*GetMap(), settings);
  if (rows.isEmpty()) return {};
  LegendLayout layout({{usual(settings.titleSymbol, 12, true), usual(settings.headingSymbol, 9, true),
                        usual(settings.labelSymbol, 8, false)},
                       settings.patch,
                       settings.columns,
                       settings.wrapPt});
  return layout.elements(settings.title, rows, rectangle());
}

_ptr_t<MapSurround> Legend::Clone() const { return make<Legend>(*this); }
QString Legend::title() const { return QCoreApplication::translate("MapSurround", "Legend"); }

LegendSettings LegendSettings::of(Legend const& legend) { return legend.d->settings; }
void LegendSettings::applyTo(Legend& legend) const { legend.d->settings = *this; }

}  // namespace SysCarto
