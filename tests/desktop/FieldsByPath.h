#pragma once

#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/maps/LayerTree.h"

#include <QJsonValue>

// Fields of a thing of a document, as `set=` and `get=` name both.

inline QJsonValue valueAt(SysCarto::MapDocument const& document, QString const& address, QStringList const& keys) {
  auto const sheet = SysCarto::Editable::fields(document, SysCarto::Editable::named(document, address)).value(0);
  auto const* const field = SysUtility::fieldAt(sheet, keys);
  return field ? SysUtility::wholeValue(*field) : QJsonValue(QJsonValue::Undefined);
}

inline QList<QStringList> leaves(QVector<SysUtility::SheetField> const& fields) {
  QList<QStringList> paths;
  for (auto const& field : fields) {
    if (field.info.kind != SysUtility::FieldInfo::Kind::Object) paths << QStringList(field.key());
    for (QStringList const& inner : leaves(field.fields)) paths << QStringList(field.key()) + inner;
  }
  return paths;
}

inline QString setByPath(SysCarto::MapDocument const& document, QString const& address, QStringList const& keys,
                         QString const& typed) {
  auto const things = SysCarto::Editable::named(document, address);
  auto const sheet = SysCarto::Editable::fields(document, things).value(0);
  QJsonValue const value = SysUtility::valueOf(typed, SysUtility::fieldAt(sheet, keys));
  QStringList warnings;
  return SysCarto::Editable::set(
      document, things, keys, [&](QJsonValue const&) { return value; }, warnings);
}

// As the command line names them.
inline QString addressOf(WorkbenchPage& page, int thing) {
  auto const elements = page.container().GetElements();
  if (thing == 0) return "page";
  if (thing <= elements.size()) return QString("#%1").arg(elements[thing - 1]->GetHandle());
  int row = thing - 1 - elements.size();
  QList<_ptr_t<SysCarto::Map>> maps;
  page.bench.session().document().GetMaps(maps);
  for (int map = 0; map < maps.size(); ++map) {
    if (row-- == 0) return QString("map:#%1").arg(map);
    if (row < maps[map]->GetLayerCount()) return QString("layer:#%1/#%2").arg(map).arg(row);
    row -= maps[map]->GetLayerCount();
    auto const groups = groupsOf(*maps[map]);
    if (row < groups.size()) return QString("layer:#%1/%2").arg(map).arg(groups[row]->name());
    row -= groups.size();
  }
  return QString();
}
