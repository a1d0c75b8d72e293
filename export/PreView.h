#pragma once

#include <SysCarto/PageLayout.h>
#include <SysFramework/BaseCommand.h>
#include <SysUI/TrackerCancel.h>

#include <QDialog>

#include <memory>

class QPixmap;
namespace Ui {
class PreView;
}

/// Shows the whole page as the export draws it, in a small picture that can be zoomed.
///
/// Its Qt parent owns it: counted though it is as a command, it is never held by a counting pointer.
class PreView : public QDialog, public SysFramework::BaseCommand {
  Q_OBJECT

public:
  explicit PreView(QWidget* parent);
  ~PreView() override;

  /// Draws the page of `layout` and shows it. The page fills the picture's width; of a page that is higher than the
  /// picture, the lower end is cut off. Symbols have their size at `dpi`, so at a high resolution they look bold. An
  /// empty `cancel` never cancels; after a cancelled drawing, as without a page, no picture is shown.
  void RenderPreview(int dpi, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
                     SysUtility::_ptr_t<SysCarto::PageLayout> const& layout,
                     SysUtility::_ptr_t<IApplicationHook> const& hook);

private slots:
  void slot_Scaled(int value);

private:
  SysUtility::_ptr_t<IApplicationHook> applicationHook_;
  int pictureWidth_ = 0;
  int pictureHeight_ = 0;
  std::unique_ptr<QPixmap> unscaled_;  // null until drawn
  std::unique_ptr<Ui::PreView> ui_;
};
