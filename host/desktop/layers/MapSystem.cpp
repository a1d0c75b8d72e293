#include "MapSystem.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <QCoreApplication>
#include <QMessageBox>

using SysAdapterUI::SystemChoice;
using SysUtility::_ptr_t;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(MapSystem)
};

QStringList systemsOf(SysCarto::MapDocument const& document) {
  QStringList systems;
  QList<_ptr_t<SysCarto::Map>> maps;
  document.GetMaps(maps);
  for (auto const& map : qAsConst(maps)) {
    systems << map->GetCoordinateSystem();
    for (auto const& layer : map->GetLayers())
      if (auto const vector = SysUtility::ptr_cast<SysCarto::VectorLayer>(layer))
        systems << vector->source().coordinateSystem;
  }
  systems.removeAll(QString());
  systems.removeDuplicates();
  return systems;
}

SysCarto::GlobeBox shownBy(SysCarto::Map const& map) {
  auto const shown = map.GetExtent();
  return SysCarto::globeBoxOf({shown->GetXMin(), shown->GetYMin(), shown->GetXMax(), shown->GetYMax()},
                              map.GetCoordinateSystem());
}

}  // namespace

SystemChoice systemChoice(SysCarto::MapDocument const& document, SysCarto::Map const* map, QString const& now,
                          bool isOfLayer) {
  QString const none = isOfLayer ? Texts::tr("None: as the file says") : Texts::tr("None: plain coordinates in metres");
  return {now, none, systemsOf(document), map ? shownBy(*map) : SysCarto::GlobeBox()};
}

QString chooseMapSystem(SysCarto::MapDocument const& document, _ptr_t<SysCarto::Map> const& map, QWidget* parent) {
  auto const chosen =
      SysAdapterUI::SystemChooser::choose(systemChoice(document, map.get(), map->GetCoordinateSystem(), false), parent);
  if (!chosen) return QString();
  QStringList warnings;
  QString const problem = SysCarto::Editable::set(
      document, {SysCarto::Editable::map(map)}, {QStringLiteral("coordinateSystem")},
      [&](QJsonValue const&) { return *chosen; }, warnings);
  if (!problem.isEmpty()) return Texts::tr("The coordinate system %1.").arg(problem);
  if (warnings.isEmpty()) return QString();
  QMessageBox box(QMessageBox::Information, Texts::tr("Coordinate System"), warnings.join(QLatin1Char('\n')),
                  QMessageBox::Ok, parent);
  box.setTextFormat(Qt::PlainText);
  box.exec();
  return QString();
}
