#include "PastedContent.h"

#include "host/SysCarto/elements/EmbeddedPicture.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysUtility/Fields.h"

#include <SysDisplay/Units.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImageReader>
#include <QMimeData>

#include <algorithm>

using SysCarto::Element;
using SysCarto::PageLayout;
using SysCarto::PictureElement;
using SysUtility::_ptr_t;
using SysUtility::make;
using SysUtility::TextKind;

namespace {

constexpr double mostOfThePage = 0.8;
constexpr int maxSidePx = 16384;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(PageClipboard)
};

// At 96 pixels an inch, or smaller where the page is.
_ptr_t<SysGeometry::Envelope> rectangleFor(QIODevice& file, PageLayout const& layout) {
  QSizeF sizeCm = QSizeF(QImageReader(&file).size()) * SysDisplay::cmPerInch / SysDisplay::pixelsPerInch;
  if (sizeCm.isEmpty()) sizeCm = QSizeF(1, 1);
  double widthCm = sizeCm.width(), heightCm = sizeCm.height();
  if (auto* const page = layout.GetPage()) page->QuerySize(widthCm, heightCm);
  QSizeF const most = QSizeF(widthCm, heightCm) * mostOfThePage;
  if (sizeCm.width() > most.width() || sizeCm.height() > most.height()) sizeCm.scale(most, Qt::KeepAspectRatio);
  return make<SysGeometry::Envelope>(0.0, 0.0, sizeCm.width(), sizeCm.height());
}

_ptr_t<Element> checked(_ptr_t<PictureElement> const& picture, QString& problem) {
  problem = picture->problem();
  return problem.isEmpty() ? picture : nullptr;
}

// The file's own bytes where another program has them, since they say more than the pixels.
QByteArray bytesIn(QMimeData const& content, QString& problem) {
  for (char const* type : {"image/svg+xml", "image/png", "image/jpeg", "image/webp", "image/tiff"}) {
    QByteArray const bytes = content.data(QLatin1String(type));
    if (!bytes.isEmpty()) return bytes;
  }
  auto const image = qvariant_cast<QImage>(content.imageData());
  if (std::max(image.width(), image.height()) > maxSidePx) {
    problem =
        Texts::tr("The picture on the clipboard has more than %1 pixels a side; copy a smaller one.").arg(maxSidePx);
    return {};
  }
  QBuffer png;
  png.open(QIODevice::WriteOnly);
  image.save(&png, "png");
  return png.data();
}

}  // namespace

_ptr_t<Element> pictureOfFile(QString const& path, PageLayout const& layout, QString& problem) {
  auto const picture = make<PictureElement>();
  picture->setPath(path);
  if (!checked(picture, problem)) return nullptr;
  QFile file(path);
  if (file.open(QIODevice::ReadOnly)) picture->setShape(rectangleFor(file, layout));
  return picture;
}

_ptr_t<Element> pictureOf(QMimeData const& content, PageLayout const& layout, QString& problem) {
  QByteArray bytes = bytesIn(content, problem);
  if (!problem.isEmpty()) return nullptr;
  QString const data = SysCarto::embeddedPicture(bytes);
  if (data.isEmpty()) {
    problem = Texts::tr("The picture on the clipboard can't be read; save it as a file and paste that.");
    return nullptr;
  }
  if (data.size() > SysUtility::maxCharacters(TextKind::Picture)) {
    problem = Texts::tr("The picture on the clipboard is too large to be embedded; save it as a file and paste that.");
    return nullptr;
  }
  auto const picture = make<PictureElement>();
  picture->setSource(QString(), data);
  QBuffer file(&bytes);
  file.open(QIODevice::ReadOnly);
  picture->setShape(rectangleFor(file, layout));
  return checked(picture, problem);
}

_ptr_t<Element> textElementOf(QString const& text, QString& problem) {
  QString lines = text;
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).remove(QChar(QChar::Null));
  int const max = SysUtility::maxCharacters(TextKind::Lines);
  if (lines.size() > max)
    problem = Texts::tr("The text on the clipboard has %1 characters, and an element at most %2; copy a part of it.")
                  .arg(lines.size())
                  .arg(max);
  else if (lines.trimmed().isEmpty())
    problem = Texts::tr("The text on the clipboard is blank; copy something else.");
  if (!problem.isEmpty()) return nullptr;
  auto const element = make<SysCarto::TextElement>();
  element->setText(lines);
  return element;
}
