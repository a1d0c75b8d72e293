#pragma once

#include <SysAdapterUI/Export.h>
#include <SysCarto/SymbolFrameParts.h>

#include <QWidget>

#include <memory>

namespace SysAdapterUI {

/// Edits the border, the background and the shadow of a frame. It works on copies; an empty part means: none.
class SYSADAPTERUI_EXPORT FramePropertyWidget : public QWidget {
  Q_OBJECT

public:
  FramePropertyWidget(SysUtility::_ptr_t<SysCarto::SymbolBorder> const& border,
                      SysUtility::_ptr_t<SysCarto::SymbolBackground> const& background,
                      SysUtility::_ptr_t<SysCarto::SymbolShadow> const& shadow, QWidget* parent);
  ~FramePropertyWidget() override;

  // The parts as edited, empty where there is none. They belong to the widget: clone them to keep them.
  SysUtility::_ptr_t<SysCarto::SymbolBorder> GetBorder() const;
  SysUtility::_ptr_t<SysCarto::SymbolBackground> GetBackground() const;
  SysUtility::_ptr_t<SysCarto::SymbolShadow> GetShadow() const;

signals:
  /// The user has changed something.
  void ValueChanged();

protected:
  void changeEvent(QEvent* event) override;

private:
  struct Private;
  std::unique_ptr<Private> d;
};

}  // namespace SysAdapterUI
