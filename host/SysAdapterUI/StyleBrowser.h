#pragma once

#include "host/SysAdapterUI/StyleItemModel.h"

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QListView;
class QListWidget;

namespace SysAdapterUI {

/// The symbols of one class in the style libraries, as pictures by category, with a search. A library that can't be
/// read is passed over and named.
class StyleBrowser final : public QWidget {
  Q_OBJECT

public:
  explicit StyleBrowser(QWidget* parent);
  ~StyleBrowser() override;

  /// Reads the libraries, and chooses the symbol that looks like `first`, which may be empty. One that no library has
  /// stands in front of them. `alsoOthers` as for `StyleItemModel::load`.
  void show(orvSymbologyStyleClass styleClass, SysUtility::_ptr_t<SysDisplay::Symbol> const& first,
            bool alsoOthers = false);

  /// Empty where nothing is chosen.
  SysUtility::_ptr_t<SysDisplay::Symbol> current() const;

signals:
  /// The person has gone to another symbol; a search that hides the current one is no choice.
  void chosen();

  /// The symbol was chosen for good: by a double click, or the key Enter.
  void accepted();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void build();
  void connectParts();
  void listCategories();
  void choose(int row);
  void narrow(std::function<void()> const& filter);
  void showChoice();

  StyleItemModel* const model_;
  StyleItemFilter* const filter_;
  QLineEdit* const search_;
  QListWidget* const categories_;
  QListView* const grid_;
  QLabel* const chosen_;
  QLabel* const problems_;
  bool isNarrowing_ = false;
};

}  // namespace SysAdapterUI
