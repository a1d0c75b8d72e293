#pragma once

#include <SysAdapterUI/Export.h>
#include <SysAdapterUI/StyleSelectorDlg.h>
#include <SysDisplay/StyleGalleryItem.h>
#include <SysDisplay/Symbol.h>

#include <QAbstractListModel>
#include <QIcon>
#include <QSortFilterProxyModel>
#include <QStringList>

#include <vector>

namespace SysAdapterUI {

/// The symbols of one class in the style libraries, with pictures that are drawn when they are first shown.
class SYSADAPTERUI_EXPORT StyleItemModel final : public QAbstractListModel {
  Q_OBJECT

public:
  enum Role { CategoryRole = Qt::UserRole };

  explicit StyleItemModel(QObject* parent);

  /// Reads the libraries anew. Those that can't be read are passed over; `problems` tells why. Behind the symbols of
  /// the class may stand the others that could take their place.
  void load(orvSymbologyStyleClass styleClass, QStringList const& files, bool alsoOthers = false);
  QStringList const& problems() const { return problems_; }

  /// Puts a symbol that is in no library in front of all others.
  void addFirst(QString const& name, SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol);

  /// The row of a symbol that looks like this one; −1 where there is none.
  int rowLike(SysDisplay::Symbol const& symbol) const;

  /// Empty where there is no such row.
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol(int row) const;

  /// The categories in their order, without the outermost one.
  QStringList categories() const;
  QSize pictureSize() const;
  QSize cellSize() const;

  int rowCount(QModelIndex const& parent = {}) const override;
  QVariant data(QModelIndex const& index, int role) const override;

private:
  struct Entry {
    QString name, category, file;
    SysUtility::_ptr_t<SysDisplay::Symbol> symbol;
    bool isOfClass;
    mutable QIcon picture;
  };
  void loadFile(QString const& file);
  QIcon const& pictureOf(Entry const& entry) const;

  orvSymbologyStyleClass class_ = NorthArrowStyle;
  std::vector<Entry> entries_;
  QStringList problems_;
};

/// Shows the items of one category, or of all, whose names hold every word that is looked for.
class SYSADAPTERUI_EXPORT StyleItemFilter final : public QSortFilterProxyModel {
  Q_OBJECT

public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  /// A null text shows all categories.
  void setCategory(QString const& category);
  void setWords(QString const& text);

protected:
  bool filterAcceptsRow(int row, QModelIndex const& parent) const override;

private:
  QString category_;
  QStringList words_;
};

/// A person's own style library, where there is one, and those that the settings name and that exist; the host's own
/// where there are none.
SYSADAPTERUI_EXPORT QStringList styleFiles();

}  // namespace SysAdapterUI
