#pragma once

#include <SysAdapterUI/Export.h>
#include <SysCarto/IKdxContents.h>

#include <QWidget>

#include <memory>

namespace SysAdapterUI {

/// The table of contents: the maps of the contents that it is bound to, with their layers. The name of the focus map is
/// bold.
class SYSADAPTERUI_EXPORT TOCControl : public QWidget {
  Q_OBJECT

public:
  explicit TOCControl(QWidget* parent);
  ~TOCControl() override;

  /// Shows the maps of these contents, borrowed; null shows none.
  void SetBuddy(SysCarto::IKdxContents* contents);

  /// Shows anew which layers are visible. A click on a layer's box is a step of the history, which may be taken back.
  void Refresh();

  /// Shows which map has the focus now.
  void ShowFocus(SysUtility::_ptr_t<SysCarto::Map> const& map);

signals:
  /// The user has chosen a map by its name.
  void MapChosen(SysUtility::_ptr_t<SysCarto::Map> const& map);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysAdapterUI
