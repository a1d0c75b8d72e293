#pragma once

#include <SysCarto/PageLayout.h>
#include <SysFramework/IApplicationHook.h>

#include <QDialog>

#include <memory>

namespace Ui {
class ExportParaDlg;
}

/// Asks for the file and the resolution of an export. Resolution, width and height are kept in step with the size of
/// the page; only the resolution counts, since the export computes the size of its image from it.
class ExportParaDlg : public QDialog {
  Q_OBJECT

public:
  /// Holds the layout and the hook, which the preview needs.
  ExportParaDlg(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout,
                SysUtility::_ptr_t<IApplicationHook> const& hook, QWidget* parent);
  ~ExportParaDlg() override;

  /// The chosen file as it was chosen; empty where none was.
  QString outputPath() const;

  /// 0 where the field holds no number.
  int dpi() const;

private slots:
  void slotDPIEdited(QString const& text);
  void slotWidthEdited(QString const& text);
  void slotHeightEdited(QString const& text);
  void slot_PreView();
  void slotOutputPath();

private:
  void showSize(int dpi);
  void showResolution(int dpi);

  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  SysUtility::_ptr_t<IApplicationHook> hook_;
  std::unique_ptr<Ui::ExportParaDlg> ui_;
};
