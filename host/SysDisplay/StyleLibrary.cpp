#include "StyleLibrary.h"

#include "host/SysDisplay/SymbolArchive.h"
#include "host/SysUtility/FileSaver.h"
#include "host/SysUtility/JsonFile.h"

#include <QCoreApplication>

namespace SysDisplay {

using SysUtility::aboutFile;
using SysUtility::Archive;

namespace {

constexpr int styleVersion = 1;
constexpr int newestThinkable = 1000000;
constexpr int mostCategories = 1000, mostItems = 10000;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(StyleLibrary)
};

SysUtility::JsonFileKind styleKind() { return {Texts::tr("style library"), QStringLiteral(".style"), 64}; }

void describeFormat(Archive& archive) {
  QString const ours = QStringLiteral("plotvane-style");
  QString format = ours;
  int version = styleVersion;
  archive.text("format", format);
  if (archive.ok() && format != ours)
    return archive.fail("format", Texts::tr("is not “%1”, so this is no style library").arg(ours));
  archive.integer("version", version, 1, newestThinkable);
  if (archive.ok() && version > styleVersion)
    archive.fail("version",
                 Texts::tr("the library was written by a newer version of Plotvane, as version %1; update Plotvane")
                     .arg(version));
}

void describeName(Archive& archive, QString& name) {
  archive.text("name", name);
  if (archive.ok() && name.trimmed().isEmpty()) archive.fail("name", Texts::tr("is empty; give it a name"));
}

void describe(Archive& archive, StyleItem& item) {
  describeName(archive, item.name);
  describeSymbol(archive, "symbol", item.symbol);
}

void describe(Archive& archive, StyleCategory& category) {
  describeName(archive, category.name);
  archive.list("items", category.items.size(), mostItems, [&](Archive& object, int index) {
    if (object.reading()) category.items << StyleItem();
    describe(object, category.items[index]);
  });
}

}  // namespace

void describeStyleLibrary(Archive& archive, StyleLibrary& library) {
  describeFormat(archive);
  if (!archive.ok()) return;
  archive.list("categories", library.categories.size(), mostCategories, [&](Archive& object, int index) {
    if (object.reading()) library.categories << StyleCategory();
    describe(object, library.categories[index]);
  });
}

std::optional<StyleLibrary> readStyleLibrary(QString const& path, QString& error) {
  auto const json = SysUtility::readJsonFile(path, styleKind(), error);
  if (!json) return std::nullopt;
  StyleLibrary library;
  Archive archive(*json);
  describeStyleLibrary(archive, library);
  if (archive.ok()) return library;
  error = aboutFile(path, archive.error() + Texts::tr("; correct the file or choose another one"));
  return std::nullopt;
}

QString writeStyleLibrary(QString const& path, StyleLibrary const& library) {
  StyleLibrary written = library;
  Archive archive;
  describeStyleLibrary(archive, written);
  if (!archive.ok()) return aboutFile(path, archive.error() + Texts::tr("; change this value, then save again"));
  return SysUtility::FileSaver::save(path, SysUtility::jsonText(archive.json()));
}

bool liesIn(QString const& category, QString const& name) {
  return category == name || category.startsWith(name + QLatin1Char('/'));
}

}  // namespace SysDisplay
