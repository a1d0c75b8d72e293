#include "PageTexts.h"

#include "host/SysCarto/layers/LayerHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/projection/CoordinateSystem.h"
#include "host/SysCarto/surrounds/Pieces.h"

#include <SysCarto/Map.h>

#include <QCoreApplication>
#include <QDate>
#include <QFileInfo>
#include <QLocale>

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysUtility::_ptr_t;

namespace {

constexpr int scaleDigits = 4;  // off by a twentieth of a per cent at most

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PageTexts)
};

QList<_ptr_t<Map>> mapsOf(PageLayout const& layout) {
  QList<_ptr_t<Map>> maps;
  layout.GetMaps(maps);
  return maps;
}

QString scaleOf(Map const& map) {
  double const scale = map.scale();
  if (!(scale > 0) || !std::isfinite(scale)) return QString();
  double const unit = std::pow(10.0, std::floor(std::log10(scale)) + 1 - scaleDigits);
  return QStringLiteral("1:") + grouped(std::round(scale / unit) * unit);
}

// A PROJ text has no name; then that of the projection says most.
QString systemOf(Map const& map) {
  auto const system = makeCoordinateSystem(map.GetCoordinateSystem());
  QString const name = system ? QString::fromUtf8(system->GetName()) : QString();
  if (name != QLatin1String("unknown")) return name;
  return QString::fromUtf8(system->GetAttrValue("PROJECTION")).replace(QLatin1Char('_'), QLatin1Char(' '));
}

QString creditsOf(QList<_ptr_t<Map>> const& maps) {
  QStringList credits;
  for (auto const& map : maps)
    for (auto const& layer : map->GetLayers()) {
      QString const own = LayerHost::credits(*layer);
      if (layer->IsVisible() && !own.isEmpty() && !credits.contains(own)) credits << own;
    }
  return credits.join(QStringLiteral("; "));
}

QString dateIn(QString const& format) {
  QDate const today = QDate::currentDate();
  return format.isEmpty() ? today.toString(Qt::ISODate) : QLocale().toString(today, format);
}

QString nameOf(QString const& documentPath) {
  return documentPath.isEmpty() ? Texts::tr("Untitled") : QFileInfo(documentPath).completeBaseName();
}

}  // namespace

std::shared_ptr<Placeholders> pageTexts(PageLayout const& layout, std::function<QString()> const& documentPath) {
  return std::make_shared<Placeholders>([&layout, documentPath](QString const& name, QString const& argument) {
    if (!Placeholders::names().contains(name)) return std::optional<QString>();
    if (auto const page = PageLayoutHost::shownPage(layout))
      if (auto const ofPage = page->text(name, argument)) return ofPage;
    auto const all = mapsOf(layout);
    auto const named =
        std::find_if(all.begin(), all.end(), [&](auto const& map) { return map->GetName() == argument; });
    auto const map = argument.isEmpty() ? layout.GetFocusMap() : named != all.end() ? *named : nullptr;
    std::optional<QString> text;
    if (name == QLatin1String("date")) {
      text = dateIn(argument);
    } else if (name == QLatin1String("document") && argument.isEmpty()) {
      text = nameOf(documentPath());
    } else if (name == QLatin1String("title") && argument.isEmpty()) {
      QString const& title = PageLayoutHost::information(layout).title;
      text = title.isEmpty() ? nameOf(documentPath()) : title;
    } else if (name == QLatin1String("author") && argument.isEmpty()) {
      text = PageLayoutHost::information(layout).author;
    } else if ((name == QLatin1String("page") || name == QLatin1String("pages")) && argument.isEmpty()) {
      text = QStringLiteral("1");
    } else if (name == QLatin1String("credits") && (map || argument.isEmpty())) {
      text = creditsOf(argument.isEmpty() ? all : QList<_ptr_t<Map>>{map});
    } else if (map && name == QLatin1String("map")) {
      text = map->GetName();
    } else if (map && name == QLatin1String("scale")) {
      text = scaleOf(*map);
    } else if (map && name == QLatin1String("crs")) {
      text = systemOf(*map);
    }
    return text;
  });
}

FileInformation FileInformation::of(MapDocument const& document) {
  PageLayout const& layout = *document.GetPageLayout();
  FileInformation information{PageLayoutHost::information(layout), creditsOf(mapsOf(layout))};
  if (information.title.isEmpty()) information.title = nameOf(document.GetPath());
  return information;
}

}  // namespace SysCarto
