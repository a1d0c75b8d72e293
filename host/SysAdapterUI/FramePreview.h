#pragma once

#include <SysCarto/FrameProperties.h>

#include <QWidget>

namespace SysAdapterUI {

/// Shows a rectangle with a border, a background and a shadow as the host draws them: in their size on a screen of 96
/// pixels an inch, or smaller where that does not fit.
class FramePreview : public QWidget {
  Q_OBJECT

public:
  explicit FramePreview(QWidget* parent = nullptr);
  ~FramePreview() override;

  /// Empty parts are not drawn.
  void setParts(SysUtility::_ptr_t<SysCarto::IShadow> const& shadow,
                SysUtility::_ptr_t<SysCarto::IBackground> const& background,
                SysUtility::_ptr_t<SysCarto::IBorder> const& border);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  SysUtility::_ptr_t<SysGeometry::Envelope> sample() const;  // centimetres, lower left corner at the origin
  SysUtility::_ptr_t<SysDisplay::DisplayTransformation> fittedTransform() const;

  SysUtility::_ptr_t<SysCarto::FramePart> parts_[3];  // first drawn first
};

}  // namespace SysAdapterUI
