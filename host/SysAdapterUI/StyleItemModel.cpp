#include "StyleItemModel.h"

#include "host/SysAdapterUI/OwnLibrary.h"
#include "host/SysAdapterUI/SymbolPreview.h"
#include "host/SysDisplay/StyleLibrary.h"
#include "host/SysDisplay/SymbolFields.h"

#include <SysAdapterUI/StyleGalleryClass.h>
#include <SysDisplay/Units.h>
#include <SysUI/EnvironmentSetting.h>

#include <QApplication>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace SysAdapterUI {

using SysDisplay::Symbol;
using SysDisplay::SymbolType;
using SysUtility::_ptr_t;

namespace {

constexpr int cellMarginPx = 12;

constexpr int marginPx = 6;

// What belongs to a class of styles, and how it is shown.
struct ClassRow {
  SymbolType type;
  QSize pictureSize;
  bool fillsPicture;
};

// clang-format off
ClassRow const& rowOf(orvSymbologyStyleClass styleClass) {
  static ClassRow const rows[] = {
      {SymbolType::Marker, {84, 96}, true},   // north arrows
      {SymbolType::Marker, {56, 56}, false},
      {SymbolType::Line,   {96, 48}, false},
      {SymbolType::Fill,   {84, 56}, false},
      {SymbolType::Text,   {84, 64}, false},
  };
  return rows[std::clamp<int>(styleClass, NorthArrowStyle, TextStyle)];
}
// clang-format on

bool isArrow(QString const& category) { return SysDisplay::liesIn(category, QStringLiteral("NorthArrows")); }

QString innerPart(QString const& category) {
  int const slash = category.indexOf(QLatin1Char('/'));
  return slash < 0 ? category : category.mid(slash + 1);
}

}  // namespace

StyleItemModel::StyleItemModel(QObject* parent) : QAbstractListModel(parent) {}

void StyleItemModel::load(orvSymbologyStyleClass styleClass, QStringList const& files, bool alsoOthers) {
  beginResetModel();
  class_ = styleClass;
  entries_.clear();
  problems_.clear();
  for (QString const& file : files) loadFile(file);
  auto const others =
      std::stable_partition(entries_.begin(), entries_.end(), [](Entry const& entry) { return entry.isOfClass; });
  if (!alsoOthers) entries_.erase(others, entries_.end());
  endResetModel();
}

void StyleItemModel::loadFile(QString const& file) {
  StyleGalleryClass gallery;
  QVector<_ptr_t<SysDisplay::StyleGalleryItem>> items;
  if (!gallery.GetAllItems(file, items)) {
    problems_ << gallery.lastError();
    return;
  }
  for (auto const& item : qAsConst(items)) {
    auto const symbol = SysUtility::ptr_cast<Symbol>(item->GetItem());
    bool const isOfClass = isArrow(item->GetCategory()) == (class_ == NorthArrowStyle);
    if (symbol && symbol->GetType() == rowOf(class_).type)
      entries_.push_back({item->GetName(), innerPart(item->GetCategory()), file, symbol, isOfClass, {}});
  }
}

void StyleItemModel::addFirst(QString const& name, _ptr_t<Symbol> const& symbol) {
  beginInsertRows({}, 0, 0);
  entries_.insert(entries_.begin(), {name, QString(), QString(), symbol, true, {}});
  endInsertRows();
}

int StyleItemModel::rowLike(Symbol const& symbol) const {
  QString const wanted = SysDisplay::exportSymbol(symbol);
  for (size_t row = 0; row < entries_.size(); ++row)
    if (SysDisplay::exportSymbol(*entries_[row].symbol) == wanted) return static_cast<int>(row);
  return -1;
}

_ptr_t<Symbol> StyleItemModel::symbol(int row) const {
  return row >= 0 && row < rowCount() ? entries_[static_cast<size_t>(row)].symbol : nullptr;
}

QStringList StyleItemModel::categories() const {
  QStringList names;
  for (Entry const& entry : entries_)
    if (!entry.category.isEmpty()) names << entry.category;
  names.removeDuplicates();
  return names;
}

QSize StyleItemModel::pictureSize() const { return rowOf(class_).pictureSize; }

// With room for a name of two lines.
QSize StyleItemModel::cellSize() const {
  return pictureSize() + QSize(2 * cellMarginPx, cellMarginPx + 2 * QFontMetrics(QApplication::font()).lineSpacing());
}

int StyleItemModel::rowCount(QModelIndex const& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant StyleItemModel::data(QModelIndex const& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  Entry const& entry = entries_[static_cast<size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole: return entry.name;
    case Qt::DecorationRole: return pictureOf(entry);
    case Qt::ToolTipRole:
      return entry.file.isEmpty() ? entry.name : entry.name + QLatin1Char('\n') + QFileInfo(entry.file).fileName();
    case CategoryRole: return entry.category;
    case Qt::SizeHintRole: return cellSize();
    default: return {};
  }
}

QIcon const& StyleItemModel::pictureOf(Entry const& entry) const {
  if (!entry.picture.isNull()) return entry.picture;
  double const ratio = qGuiApp->devicePixelRatio();
  QPixmap picture(pictureSize() * ratio);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  double const margin = marginPx * ratio;
  drawSymbolPreview(painter, QRectF(picture.rect()).adjusted(margin, margin, -margin, -margin), *entry.symbol,
                    SysDisplay::pixelsPerPoint * ratio, rowOf(class_).fillsPicture);
  painter.end();
  picture.setDevicePixelRatio(ratio);
  entry.picture = QIcon(picture);
  // A selected item keeps its colours: what is chosen is to be seen as it will be drawn.
  entry.picture.addPixmap(picture, QIcon::Selected);
  return entry.picture;
}

void StyleItemFilter::setCategory(QString const& category) {
  category_ = category;
  invalidateFilter();
}

void StyleItemFilter::setWords(QString const& text) {
  words_ = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  invalidateFilter();
}

bool StyleItemFilter::filterAcceptsRow(int row, QModelIndex const& parent) const {
  QModelIndex const index = sourceModel()->index(row, 0, parent);
  QString const category = index.data(StyleItemModel::CategoryRole).toString();
  if (!category_.isNull() && category != category_) return false;
  QString const searched = index.data().toString() + QLatin1Char(' ') + category;
  return std::all_of(words_.begin(), words_.end(),
                     [&](QString const& word) { return searched.contains(word, Qt::CaseInsensitive); });
}

QStringList styleFiles() {
  auto* const settings = SysUI::EnvironmentSetting::Instance();
  QStringList files;
  QString const named = settings->GetPropertyValue(QStringLiteral("PATH"), QStringLiteral("StyleFilePaths"));
  for (QString const& file : named.split(QLatin1Char(',')))
    if (QFileInfo::exists(file)) files << file;
  if (files.isEmpty()) files << settings->GetStyleDir() + QStringLiteral("/ORV.style");
  if (QFileInfo::exists(ownStyleFile())) files.prepend(ownStyleFile());
  return files;
}

}  // namespace SysAdapterUI
