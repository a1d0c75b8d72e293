#pragma once

#include <SysAdapterUI/Export.h>
#include <SysUtility/CRef.h>
#include <SysUtility/Ptr.h>

#include <QDialog>

#include <memory>

namespace SysAdapterUI {

/// What a style selector shows.
enum orvSymbologyStyleClass { NorthArrowStyle = 0, MarkerStyle = 1, LineStyle = 2, FillStyle = 3, TextStyle = 4 };

/// A dialog in which a person chooses a style: the symbols of the libraries that the settings name, as pictures by
/// category, with a search. A library that can't be read is passed over and named in the dialog.
class SYSADAPTERUI_EXPORT StyleSelectorDlg : public QDialog {
  Q_OBJECT

public:
  explicit StyleSelectorDlg(QWidget* parent);
  ~StyleSelectorDlg() override;

  /// Sets the class of styles shown and the symbol that is chosen at first, which may be empty.
  void SetStyleItem(orvSymbologyStyleClass styleClass, SysUtility::_ptr_t<SysUtility::CRef> item);

  /// The chosen symbol after acceptance; empty where nothing was chosen.
  SysUtility::_ptr_t<SysUtility::CRef> GetStyleItem() const;

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysAdapterUI
