#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QString>

#include <memory>

class GDALDataset;
class QTemporaryDir;

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

  /// Whether a file can be put there at all.
  QString checkPlace() const;

  /// Whether it would replace the document, or a file that its page is drawn from.
  QString checkAgainst(SysCarto::MapDocument const& document) const;

  /// Whether the format, the disk and the memory can hold an image of that size.
  QString checkSize(QSize const& size) const;

  /// Makes the working folder.
  QString prepare();

  /// Where to write the image: in the working folder, with a suffix that names the format. After `prepare`.
  QString workingPath() const;

  /// Opens what was written, in the working folder or without one in its place, and looks at its end. A size that is
  /// empty is not known.
  QString checkResult(QSize size) const;

  /// That it was not written, with GDAL's reason.
  QString failure(SysCarto::GdalErrors const& errors) const;

  /// Moves the image into its place.
  QString commit();

private:
  QString checkFormatLimits(QSize const& size) const;
  QString checkFreeSpace(QSize const& size) const;
  QString checkFreeMemory(QSize const& size) const;
  bool is(char const* driver) const;
  QString writtenPath() const { return folder_ ? workingPath() : path_; }
  bool hasEnding() const;
  bool hasItsEnd(GDALDataset& image, QSize const& size) const;

  QString name_;  // as the user gave it, for sentences
  QString path_;  // absolute, links followed
  ImageFormat const& format_;
  std::unique_ptr<QTemporaryDir> folder_;
};
