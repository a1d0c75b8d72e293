#include "ExportArguments.h"

#include "ImageFormat.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QString const number = QStringLiteral("N");
constexpr double mmPerCm = 10;

}  // namespace

ExportArguments::ExportArguments()
    : formatName_(QStringLiteral("format"), tr("The format, whatever the suffix: %1.").arg(ImageFormat::names()),
                  QStringLiteral("FORMAT")),
      dpi_(QStringLiteral("dpi"),
           tr("Pixels per inch of paper, 1 to %1; %2 if not given.")
               .arg(ExportOptions::maxDpi)
               .arg(ExportOptions::defaultDpi),
           number),
      text_(QStringLiteral("text"),
            tr("What texts are in a PDF or SVG: \"text\", or \"shapes\", the outlines of letters that need no fonts; "
               "\"text\" if not given."),
            QStringLiteral("KIND"), QStringLiteral("text")),
      bleed_(QStringLiteral("bleed"),
             tr("Of a PDF: draw what lies over the page's edges so many millimetres beyond them."),
             QStringLiteral("MM")),
      cropMarks_(QStringLiteral("crop-marks"), tr("Of a PDF: mark where the paper is to be cut.")),
      outputIntent_(QStringLiteral("output-intent"),
                    tr("Of a PDF: the ICC profile of the device that it is meant for, in place of sRGB."),
                    QStringLiteral("FILE.icc")),
      width_(QStringLiteral("width"), tr("The image's width in pixels, in place of --dpi."), number),
      compress_(QStringLiteral("compress"), tr("How the pixels are packed: %1.").arg(ImageFormat::allCompressions()),
                QStringLiteral("METHOD")),
      quality_(QStringLiteral("quality"),
               tr("Of a JPEG or WebP, 1 to 100; %1 if not given.").arg(ExportOptions::defaultQuality), number),
      transparent_(QStringLiteral("transparent"), tr("Leave out the page's background, in a PNG, TIFF or WebP.")),
      crop_(QStringLiteral("crop"), tr("Cut the image to the elements of the page.")),
      georeference_(QStringLiteral("georeference"),
                    tr("Tell where on the Earth the data frame of that name lies: in a TIFF itself, else by a world "
                       "file beside the image."),
                    QStringLiteral("FRAME")) {}

QList<QCommandLineOption> ExportArguments::options() const {
  return {formatName_, dpi_,      text_,    bleed_,       cropMarks_, outputIntent_,
          width_,      compress_, quality_, transparent_, crop_,      georeference_};
}

QString ExportArguments::read(QCommandLineParser const& parser, QString const& file) {
  QString const name = parser.value(formatName_), suffix = QFileInfo(file).suffix();
  if (parser.isSet(formatName_))
    format_ = ImageFormat::named(name);
  else
    format_ = suffix.isEmpty() ? &ImageFormat::writtenAt(file) : ImageFormat::withSuffix(suffix);
  QString problem = readNumber(parser, dpi_, ExportOptions::maxDpi, chosen_.dpi);
  if (problem.isEmpty()) problem = readNumber(parser, width_, ExportOptions::maxWidthPx, chosen_.widthPx);
  if (problem.isEmpty()) problem = readNumber(parser, quality_, 100, chosen_.quality);
  if (!problem.isEmpty()) return problem;
  QString const text = parser.value(text_);
  if (text != QLatin1String("text") && text != QLatin1String("shapes"))
    return tr("export: --text takes \"text\" or \"shapes\", not \"%1\".").arg(text);
  chosen_.textAsShapes = text == QLatin1String("shapes");
  if (parser.isSet(bleed_)) {
    bool isNumber = false;
    double const bleedMm = parser.value(bleed_).toDouble(&isNumber);
    chosen_.bleedCm = bleedMm / mmPerCm;
    if (!isNumber || !(bleedMm >= 0 && bleedMm <= SysCarto::ExportChoices::maxBleedMm))
      return tr("export: --bleed takes millimetres from 0 to %1, not \"%2\".")
          .arg(QString::number(SysCarto::ExportChoices::maxBleedMm), parser.value(bleed_));
  }
  chosen_.cropMarks = parser.isSet(cropMarks_);
  chosen_.outputIntent = parser.value(outputIntent_);
  chosen_.compression = parser.value(compress_);
  chosen_.transparent = parser.isSet(transparent_);
  chosen_.crop = parser.isSet(crop_);
  chosen_.georeference = parser.value(georeference_);
  if (!format_ && parser.isSet(formatName_))
    return tr("export: --format takes one of %1, not \"%2\".").arg(ImageFormat::names(), name);
  if (!format_)
    return tr("export: %1: \".%2\" names no image format; use one of %3, or pass --format tiff or another.")
        .arg(file, suffix, ImageFormat::allSuffixes());
  return checkForFormat(parser);
}

QString ExportArguments::readNumber(QCommandLineParser const& parser, QCommandLineOption const& option, int most,
                                    int& number) const {
  if (!parser.isSet(option)) return QString();
  bool isNumber = false;
  number = parser.value(option).toInt(&isNumber);
  if (isNumber && number >= 1 && number <= most) return QString();
  return tr("export: --%1 takes a whole number from 1 to %2, not \"%3\".")
      .arg(option.names().first(), QString::number(most), parser.value(option));
}

// What was given must mean something to the format.
QString ExportArguments::checkForFormat(QCommandLineParser const& parser) const {
  QString const format = format_->shownName();
  if (parser.isSet(dpi_) && parser.isSet(width_)) return tr("export: give either --dpi or --width.");
  if (format_->isVector && chosen_.dpi > ExportOptions::maxVectorDpi)
    return tr("export: %1 takes a --dpi of at most %2; its shapes are as fine at any.")
        .arg(format, QString::number(ExportOptions::maxVectorDpi));
  for (auto const* option : {&bleed_, &cropMarks_, &outputIntent_})
    if (parser.isSet(*option) && qstrcmp(format_->driver, "PDF") != 0)
      return tr("export: --%1 is for a PDF alone; leave it out, or write a .pdf.").arg(option->names().first());
  for (auto const* option : {&width_, &crop_, &georeference_})
    if (format_->isVector && parser.isSet(*option))
      return tr("export: --%1 is for images; it means nothing to %2.").arg(option->names().first(), format);
  if (!format_->isVector && parser.isSet(text_)) return tr("export: --text is for a PDF or SVG.");
  if (chosen_.transparent && !format_->hasAlpha)
    return tr("export: --transparent needs a PNG, TIFF or WebP; %1 can't be transparent.").arg(format);
  if (parser.isSet(quality_) && (!format_->hasQuality || !chosen_.compression.isEmpty()))
    return tr("export: --quality is for a JPEG or a WebP that is not lossless.");
  if (parser.isSet(compress_) && !format_->compression(chosen_.compression)) {
    QString const ways = format_->compressions();
    return ways.isEmpty()
               ? tr("export: %1 is packed in one way only; leave out --compress.").arg(format)
               : tr("export: of %1, --compress takes one of %2, not \"%3\".").arg(format, ways, chosen_.compression);
  }
  return QString();
}
