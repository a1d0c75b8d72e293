#pragma once

#include "host/SysAdapterUI/FieldSource.h"

#include <SysAdapterUI/Export.h>
#include <SysDisplay/Symbol.h>

#include <QColor>
#include <QDialog>
#include <QModelIndex>

namespace SysAdapterUI {

class PropertyModel;
class PropertySheet;
class StyleBrowser;

enum class SymbolUse { Any, NorthArrow };

/// A dialog in which a person chooses a symbol of the style libraries, changes any of its fields, and sees it at its
/// size on paper, on white, on grey and on the map's background. What was made can be saved to a library of one's own.
class SYSADAPTERUI_EXPORT SymbolChooser final : public QDialog, private FieldSource {
  Q_OBJECT

public:
  /// `kinds` are the names of the kinds that may be chosen, as documents have them. The libraries' symbols for `use`
  /// come first: a north arrow's are north arrows, then other markers.
  SymbolChooser(SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol, QStringList kinds, SymbolUse use,
                QColor const& background, QWidget* parent);
  ~SymbolChooser() override;

  /// Never empty.
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol() const { return symbol_; }

private:
  class Preview;

  QVector<SysUtility::SheetField> fields() override;
  QString set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) override;
  void build();
  void browse();
  void showSymbol(SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol);
  void takeFromLibrary();
  void saveToLibrary();
  void chooseInner(QModelIndex const& index);

  SysUtility::_ptr_t<SysDisplay::Symbol> symbol_;
  QStringList const kinds_;
  SymbolUse const use_;
  QColor const background_;
  StyleBrowser* const browser_;
  PropertySheet* const sheet_;
  Preview* const preview_;
};

/// Lets a person choose the symbol of a row, and gives it to the model. `background` is what the symbol will lie on.
SYSADAPTERUI_EXPORT void chooseSymbol(PropertyModel& model, QModelIndex const& index, QColor const& background,
                                      QWidget* parent);

}  // namespace SysAdapterUI
