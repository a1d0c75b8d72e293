#include "OwnLibrary.h"

#include "host/SysDisplay/StyleLibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace SysAdapterUI {

using SysDisplay::StyleCategory;
using SysDisplay::StyleItem;
using SysDisplay::StyleLibrary;

namespace {

QString const category = QStringLiteral("My symbols");  // in the file, whatever the language of the texts

}  // namespace

QString ownStyleFile() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/own.style");
}

QString saveToOwnLibrary(QString const& name, SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol) {
  QString const file = ownStyleFile();
  StyleLibrary library;
  if (QFileInfo::exists(file)) {
    QString problem;
    auto const known = SysDisplay::readStyleLibrary(file, problem);
    if (!known) return problem;
    library = *known;
  }
  QDir().mkpath(QFileInfo(file).path());
  auto own = std::find_if(library.categories.begin(), library.categories.end(),
                          [&](StyleCategory const& one) { return one.name == category; });
  if (own == library.categories.end()) own = library.categories.insert(own, {category, {}});
  auto& items = own->items;
  items.erase(std::remove_if(items.begin(), items.end(),
                             [&](StyleItem const& item) {
                               return item.name == name && item.symbol->GetType() == symbol->GetType();
                             }),
              items.end());
  items << StyleItem{name, symbol};
  return SysDisplay::writeStyleLibrary(file, library);
}

}  // namespace SysAdapterUI
