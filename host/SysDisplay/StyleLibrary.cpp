#include "StyleLibrary.h"

#include "host/SysDisplay/SymbolFields.h"
#include "host/SysUtility/FileSaver.h"
#include "host/SysUtility/JsonFields.h"
#include "host/SysUtility/JsonFile.h"

#include <QCoreApplication>

namespace SysDisplay {

using SysUtility::aboutFile;
using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

constexpr int styleVersion = 1;
constexpr int maxCategories = 1000, maxItems = 10000;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(StyleLibrary)
};

SysUtility::JsonFileKind styleKind() { return {Texts::tr("style library"), QStringLiteral(".style"), 64}; }

void listName(Fields& fields, QString& name, char const* help) {
  fields.filledText({"name", QT_TRANSLATE_NOOP("Fields", "Name"), help}, name, TextKind::Line);
}

}  // namespace

void StyleItem::list(Fields& fields) {
  listName(fields, name, QT_TRANSLATE_NOOP("Fields", "What the symbol is called."));
  listSymbol(fields,
             {"symbol", QT_TRANSLATE_NOOP("Fields", "Symbol"), QT_TRANSLATE_NOOP("Fields", "The symbol, of any kind.")},
             symbol);
}

void StyleCategory::list(Fields& fields) {
  listName(
      fields, name,
      QT_TRANSLATE_NOOP("Fields", "What the category is called; slashes put it into others, as in “Markers/Towns”."));
  fields.list({"items", QT_TRANSLATE_NOOP("Fields", "Symbols"),
               QT_TRANSLATE_NOOP("Fields", "The symbols of the category."), "item"},
              items, maxItems, [](Fields& own, StyleItem& item, int) { item.list(own); });
}

void StyleLibrary::list(Fields& fields) {
  listFormat(fields,
             {"plotvane-style", QT_TRANSLATE_NOOP("Fields", "Style library"), styleVersion,
              Texts::tr("is not “%1”, so this is no style library"),
              Texts::tr("the library was written by a newer version of Plotvane, as version %1; update Plotvane")});
  if (!fields.ok()) return;
  fields.list({"categories", QT_TRANSLATE_NOOP("Fields", "Categories"),
               QT_TRANSLATE_NOOP("Fields", "Groups of symbols, in the order in which they are shown."), "category"},
              categories, maxCategories, [](Fields& own, StyleCategory& category, int) { category.list(own); });
}

std::optional<StyleLibrary> readStyleLibrary(QString const& path, QString& error) {
  auto const json = SysUtility::readJsonFile(path, styleKind(), error);
  if (!json) return std::nullopt;
  StyleLibrary library;
  QString const problem = SysUtility::readJson(*json, library);
  if (problem.isEmpty()) return library;
  error = aboutFile(path, problem + Texts::tr("; correct the file or choose another one"));
  return std::nullopt;
}

QString writeStyleLibrary(QString const& path, StyleLibrary const& library) {
  StyleLibrary written = library;
  SysUtility::JsonWriter writer;
  written.list(writer);
  if (!writer.ok()) return aboutFile(path, writer.error() + Texts::tr("; change this value, then save again"));
  return SysUtility::FileSaver::save(path, SysUtility::jsonText(writer.json()));
}

bool liesIn(QString const& category, QString const& name) {
  return category == name || category.startsWith(name + QLatin1Char('/'));
}

}  // namespace SysDisplay
