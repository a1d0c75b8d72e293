#pragma once

#include <SysAdapterUI/Export.h>
#include <SysCarto/IKdxContents.h>
#include <SysCarto/Layer.h>

#include <QWidget>

#include <memory>

namespace SysAdapterUI {

/// The table of contents: the maps of the contents that it is bound to, with their layers and groups of these. The name
/// of the focus map is bold.
class SYSADAPTERUI_EXPORT TOCControl : public QWidget {
  Q_OBJECT

public:
  explicit TOCControl(QWidget* parent);
  ~TOCControl() override;

  /// Shows the maps of these contents, borrowed; null shows none.
  void SetBuddy(SysCarto::IKdxContents* contents);

  /// Shows anew which layers the maps have, and their names, symbols and visibility, which a step of the history may
  /// have changed.
  void Refresh();

  /// Shows which map has the focus now.
  void ShowFocus(SysUtility::_ptr_t<SysCarto::Map> const& map);

signals:
  /// The user has chosen a map by its name.
  void MapChosen(SysUtility::_ptr_t<SysCarto::Map> const& map);

  /// The row of a map, or of one of its layers, has become the current one; `layer` is empty for the map itself.
  void RowChosen(SysUtility::_ptr_t<SysCarto::Map> const& map, SysUtility::_ptr_t<SysCarto::Layer> const& layer);

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysAdapterUI
