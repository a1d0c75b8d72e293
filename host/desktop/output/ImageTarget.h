#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QStringList>

#include <memory>

class GDALDataset;
class WorkFolder;

namespace SysCarto {
class GdalErrors;
class MapDocument;
}  // namespace SysCarto

struct ImageFormat;

/// An image file on its way into place. It is written in a working folder beside its place, so that whatever a failed
/// export leaves behind is in there and goes with it; only an image that has been looked at is moved, in one step, over
/// what was there before.
///
/// Every step answers a sentence for people with what is wrong and what to do, or an empty text.
class ImageTarget {
  Q_DECLARE_TR_FUNCTIONS(ImageTarget)

public:
  ImageTarget(QString const& path, ImageFormat const& format);
  ~ImageTarget();
  ImageTarget(ImageTarget const&) = delete;
  ImageTarget& operator=(ImageTarget const&) = delete;

  QString const& name() const { return name_; }  ///< as the user gave it
  QString const& path() const { return path_; }  ///< absolute, links followed

  /// Whether a file can be put there at all.
  QString checkPlace() const;

  /// Whether it would replace the document, or a file that its page is drawn from.
  QString checkAgainst(SysCarto::MapDocument const& document) const;

  /// Whether the format, the disk and the memory can hold an image of that size, of 3 bands or 4.
  QString checkSize(QSize const& size, int bands = 3) const;

  /// Makes the working folder.
  QString prepare();

  /// Where to write the image: in the working folder, with a suffix that names the format. After `prepare`.
  QString workingPath() const;

  /// A file of that name in the working folder, which goes with it. After `prepare`.
  QString besidePath(QString const& name) const;

  /// Has a small file of that name put beside the image, after it; none without content. Checked as the image is. After
  /// `prepare`.
  QString putBeside(QString const& name, QByteArray const& content, SysCarto::MapDocument const& document);

  /// Opens what was written, in the working folder or without one in its place, and looks at its end. A size that is
  /// empty is not known.
  QString checkResult(QSize size, int bands = 3) const;

  /// That it was not written, with GDAL's reason.
  QString failure(SysCarto::GdalErrors const& errors) const;

  /// Moves the image into its place, and then what lies beside it.
  QString commit();

private:
  QString checkAgainst(QString const& path, SysCarto::MapDocument const& document) const;
  QString checkFormatLimits(QSize const& size) const;
  QString checkFreeSpace(QSize const& size, int bands) const;
  QString checkFreeMemory(QSize const& size, int bands) const;
  QString besideImage(QString const& name) const;
  bool is(char const* driver) const;
  QString writtenPath() const { return folder_ ? workingPath() : path_; }
  bool hasEnding() const;
  bool hasItsEnd(GDALDataset& image, QSize const& size, int bands) const;

  QString name_;        // as the user gave it, for sentences
  QString path_;        // absolute, links followed
  QStringList beside_;  // names of files that go with it
  ImageFormat const& format_;
  std::unique_ptr<WorkFolder> folder_;
};
