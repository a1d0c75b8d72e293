#include "SurroundFields.h"

#include "host/SysCarto/layout/MapSurroundHost.h"
#include "host/SysCarto/surrounds/SurroundSettings.h"

#include <SysCarto/Map.h>
#include <SysCarto/MapSurroundFrame.h>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Fields;
using SysUtility::make;
using SysUtility::ptr_cast;

namespace {

constexpr int noMap = -1, foreignMap = -2;

// A kind of surround, and what is done with one.
struct Kind {
  Choice choice;                                // its value is `MapSurround::kind`
  void (*list)(Fields&, _ptr_t<MapSurround>&);  // a reader replaces the surround by a new one
};

// The settings of an object of one class; a reader replaces it by a new one.
template <class T, class Settings, class Base>
void listSettings(Fields& fields, _ptr_t<Base>& object) {
  auto const present = fields.isReading() ? nullptr : ptr_cast<T>(object);
  Settings settings = present ? Settings::of(*present) : Settings();
  settings.list(fields);
  if (!fields.isReading() || !fields.ok()) return;
  auto const made = make<T>();
  settings.applyTo(*made);
  object = made;
}

// clang-format off
constexpr Kind kinds[] = {
    {{SurroundKind::Legend, "legend",     QT_TRANSLATE_NOOP("Fields", "Legend")},      listSettings<Legend, LegendSettings>},
    {{SurroundKind::ScaleLine, "scaleLine",  QT_TRANSLATE_NOOP("Fields", "Scale bar")},   listSettings<ScaleLine, ScaleLineSettings>},
    {{SurroundKind::ScaleText, "scaleText",  QT_TRANSLATE_NOOP("Fields", "Scale text")},  listSettings<ScaleText, ScaleTextSettings>},
    {{SurroundKind::NorthArrow, "northArrow", QT_TRANSLATE_NOOP("Fields", "North arrow")}, listSettings<MarkerNorthArrow, NorthArrowSettings>},
};
// clang-format on

QVector<Choice> choicesOfKinds() {
  QVector<Choice> choices;
  for (Kind const& kind : kinds) choices << kind.choice;
  return choices;
}

}  // namespace

int mapNumber(_ptr_t<Map> const& map, DocumentContext const& context) {
  int const number = context.maps.indexOf(map);
  return number < 0 && map ? foreignMap : number;
}

int lastMap(Fields const& fields, DocumentContext const& context) {
  return (fields.isReading() ? context.maps.size() : maxMaps) - 1;
}

void listMapNumber(Fields& fields, int& number, DocumentContext const& context, char const* help, bool isRequired) {
  if (number == foreignMap)
    fields.fail("map", QCoreApplication::translate("SurroundFields", "is no map of the document"));
  fields.integer({"map", QT_TRANSLATE_NOOP("Fields", "Map"), help}, number, isRequired ? 0 : noMap,
                 lastMap(fields, context), isRequired ? std::nullopt : std::optional<int>(noMap));
}

void listSurround(Fields& fields, _ptr_t<MapSurround>& surround, DocumentContext const& context) {
  static QVector<Choice> const choices = choicesOfKinds();
  int kind = surround ? surround->kind : 0;
  fields.variant({"kind", QT_TRANSLATE_NOOP("Fields", "Kind"), QT_TRANSLATE_NOOP("Fields", "What explains the map.")},
                 kind, choices, [&](int chosen) {
                   int map = surround && !fields.isReading() ? mapNumber(surround->GetMap(), context) : noMap;
                   listMapNumber(fields, map, context,
                                 QT_TRANSLATE_NOOP("Fields", "The number of the map that it follows; −1 for none."),
                                 false);
                   for (Kind const& known : kinds)
                     if (known.choice.value == chosen) known.list(fields, surround);
                   if (fields.isReading() && fields.ok()) surround->SetMap(context.maps.value(map));
                 });
}

void listGrid(Fields& fields, _ptr_t<IMapGrid>& grid) {
  if (!fields.isReading() && grid && !ptr_cast<Graticule>(grid))
    return fields.fail(nullptr, QCoreApplication::translate("SurroundFields", "a grid of a kind that can't be stored"));
  listSettings<Graticule, GraticuleSettings>(fields, grid);
}

QString problemOf(Element const& element) {
  auto const* const frame = dynamic_cast<MapSurroundFrame const*>(&element);
  auto const surround = frame ? frame->GetMapSurround() : nullptr;
  QString const problem = surround ? MapSurroundHost::problem(*surround) : QString();
  if (problem.isEmpty()) return problem;
  QString const name = element.GetName().isEmpty() ? QStringLiteral("#%1").arg(element.GetHandle()) : element.GetName();
  return QCoreApplication::translate("SurroundFields", "the element “%1” is not drawn: %2").arg(name, problem);
}

}  // namespace SysCarto
