#include "SheetTabs.h"

#include <QCoreApplication>

using SysUtility::FieldInfo;
using SysUtility::SheetField;

namespace {

enum Tab { General, Source, Tables, System, Symbols, Labels, Scales, Credits };

struct Place {
  char const* path;
  Tab tab;
};
constexpr Place places[] = {
    {"source", Source},      {"source/joins", Tables}, {"source/coordinateSystem", System},
    {"renderer", Symbols},   {"labels", Labels},       {"obstacle", Labels},
    {"minScale", Scales},    {"maxScale", Scales},     {"credits", Credits},
    {"resampling", Symbols}, {"brightness", Symbols},  {"contrast", Symbols},
    {"saturation", Symbols},
};

// The longest path of the table in which a field lies.
Place const* longestIn(QString const& path) {
  Place const* found = nullptr;
  for (Place const& place : places) {
    QLatin1String const known(place.path);
    bool const isIn = path == known || path.startsWith(known + QLatin1Char('/'));
    if (isIn && (!found || known.size() > QLatin1String(found->path).size())) found = &place;
  }
  return found;
}

}  // namespace

QVector<SheetTab> const& SheetTab::all() {
  // clang-format off
  static QVector<SheetTab> const tabs = {
      {"General", QT_TRANSLATE_NOOP("LayerSheet", "Layer")},
      {"Source",  QT_TRANSLATE_NOOP("LayerSheet", "Source")},
      {"Tables",  QT_TRANSLATE_NOOP("LayerSheet", "Joined Tables")},
      {"System",  QT_TRANSLATE_NOOP("LayerSheet", "Coordinate System")},
      {"Symbols", QT_TRANSLATE_NOOP("LayerSheet", "Symbols")},
      {"Labels",  QT_TRANSLATE_NOOP("LayerSheet", "Labels")},
      {"Scales",  QT_TRANSLATE_NOOP("LayerSheet", "Scales")},
      {"Credits", QT_TRANSLATE_NOOP("LayerSheet", "Credits")},
  };
  // clang-format on
  return tabs;
}

int SheetTab::of(QStringList const& path) {
  Place const* const place = longestIn(path.join(QLatin1Char('/')));
  return place ? place->tab : General;
}

QVector<SheetField> TabFields::fields() {
  QVector<SheetField> found;
  places_.clear();
  collect(whole_.fields(), {}, found);
  return found;
}

void TabFields::collect(QVector<SheetField> const& from, QStringList const& outer, QVector<SheetField>& found) {
  for (SheetField const& field : from) {
    QStringList const path = outer + QStringList(field.key());
    QString const name = path.join(QLatin1Char('/'));
    Place const* const place = longestIn(name);
    bool const isNamed = place && name == QLatin1String(place->path);
    bool const isOpened = isNamed && field.info.kind == FieldInfo::Kind::Object && field.info.rules.isRequired;
    if (isOpened) {
      collect(field.fields, path, found);
    } else if (SheetTab::of(path) == tab_) {
      places_[field.key()] = path;
      found << field;
    }
  }
}
