#pragma once

#include <SysFramework/BaseCommand.h>
#include <SysUI/TrackerCancel.h>

#include <QPointer>
#include <QProgressDialog>

#include <memory>

namespace Plugin {

/// Exports the page layout as an image file.
class ExportCommand : public SysFramework::BaseCommand {
public:
  /// Told how far the work has come, in percent. Answers non-zero to go on.
  using Progress = int (*)(double, char const*, void*);

  ExportCommand();
  ~ExportCommand() override;

  bool IsEnable() override;
  void OnCreate(void* hook) override;

  /// Asks for the file and the resolution, exports with a progress dialog, and tells when it is done.
  void OnClick() override;

  /// The progress dialog, made at the first call and shared by copies of the command. Its parent, the host's contents,
  /// owns it; where there is none, the last of the copies.
  QProgressDialog* GetProgressBar();

  /// Draws the page at a resolution and writes it to `path`, in the format that the suffix names. The progress function
  /// hears of the drawing in percent; the conversion that follows is shown in the progress dialog, which must have been
  /// made before. A cancelled export leaves the tiles that were not drawn black.
  ///
  /// False where there is no page, where the temporary file beside `path` can't be created or written, or where GDAL
  /// can't write the format. True says that the conversion ran, not that it succeeded: that only GDAL's error handler
  /// and a look at the file can tell.
  bool OutputOtherPicture(QString const& path, int dpi, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel,
                          Progress progress, void* data);

  /// Shows a percentage in the dialog of the command that `data` points to.
  static int DrawProgressCallback(double percent, char const* message, void* data);

  /// The same for GDAL's fraction.
  static int CopyProgressCallback(double fraction, char const* message, void* data);

private:
  void exportAs(QString const& path, int dpi, QWidget* parent);
  void setProgressLabel(QString const& text);

  QPointer<QProgressDialog> progressDialog_;
  std::shared_ptr<QProgressDialog> ownDialog_;  // the same where it has no parent
};

}  // namespace Plugin
