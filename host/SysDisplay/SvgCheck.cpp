#include "SvgCheck.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QHash>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>
#include <limits>

namespace SysDisplay {

namespace {

constexpr int maxBytes = 2 * 1024 * 1024;
constexpr int maxElements = 20000;
constexpr int deepest = 64;
constexpr int maxUseDepth = 256;  // a chain of so many, each drawn on its own too, comes to more than `maxElements`
constexpr int maxImagePx = 4096;
constexpr int pixelsOfAPart = 5000;  // so many of an embedded image take about as long to draw as an element
constexpr double mostDashes = 1e9;   // 2³¹ of them away Qt steps to where the dashes begin one by one

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(SvgCheck)
};

// The targets of `url(…)` in a style.
QStringList urlsIn(QString const& style) {
  QStringList urls;
  for (int at = style.indexOf(QLatin1String("url("), 0, Qt::CaseInsensitive); at >= 0;
       at = style.indexOf(QLatin1String("url("), at + 1, Qt::CaseInsensitive)) {
    QString target = style.mid(at + 4).trimmed();
    if (target.startsWith(QLatin1Char('"')) || target.startsWith(QLatin1Char('\''))) target.remove(0, 1);
    urls << target.trimmed();
  }
  return urls;
}

class Checker {
public:
  explicit Checker(QByteArray const& svg) : reader_(svg) {}

  QString problem() {
    while (!reader_.atEnd() && problem_.isEmpty()) token(reader_.readNext());
    if (problem_.isEmpty() && reader_.hasError())
      refuse(
          Texts::tr("the SVG is not well-formed: %1 in line %2").arg(reader_.errorString()).arg(reader_.lineNumber()));
    if (problem_.isEmpty() && elements_ == 0) refuse(Texts::tr("the SVG is empty"));
    if (problem_.isEmpty()) checkUses();
    if (problem_.isEmpty() && farthestOffset_ > mostDashes * shortestDash_)
      refuse(
          Texts::tr("the SVG's dashes and their offset differ by more than 1 to 1,000,000,000; change "
                    "stroke-dasharray or stroke-dashoffset"));
    return problem_;
  }

private:
  void refuse(QString const& what) {
    if (problem_.isEmpty()) problem_ = what;
  }
  void refuseHidden() {
    refuse(Texts::tr("the SVG's style sheet imports another or hides characters; put what it needs into the file"));
  }

  void token(QXmlStreamReader::TokenType type) {
    switch (type) {
      case QXmlStreamReader::DTD:
      case QXmlStreamReader::EntityReference:
        return refuse(Texts::tr("the SVG declares a document type or entities; remove them"));
      case QXmlStreamReader::ProcessingInstruction:
        return refuse(Texts::tr("the SVG holds a processing instruction; remove it"));
      case QXmlStreamReader::StartElement: return startElement();
      case QXmlStreamReader::EndElement:
        openIds_.removeLast();
        if (openIds_.size() < styleDepth_) styleDepth_ = 0;
        return;
      case QXmlStreamReader::Characters:
        // Text that is drawn may say anything; only a style sheet can refer to something.
        if (styleDepth_ > 0) checkStyle(reader_.text().toString(), true);
        return;
      default: return;
    }
  }

  void startElement() {
    QString const name = reader_.name().toString();
    if (++elements_ == 1 && name != QLatin1String("svg")) return refuse(Texts::tr("the file is not an SVG"));
    if (elements_ > maxElements) return refuse(Texts::tr("the SVG has more than %1 elements").arg(maxElements));
    if (openIds_.size() >= deepest)
      return refuse(Texts::tr("the SVG's elements are nested more than %1 deep").arg(deepest));
    if (name == QLatin1String("script")) return refuse(Texts::tr("the SVG holds a script; remove it"));
    QXmlStreamAttributes const attributes = reader_.attributes();
    openIds_ << attributes.value(QLatin1String("id")).toString();
    if (styleDepth_ == 0 && name == QLatin1String("style")) styleDepth_ = openIds_.size();
    for (QString const& id : qAsConst(openIds_))
      if (!id.isEmpty()) ++content_[id].elements;
    for (QXmlStreamAttribute const& attribute : attributes) {
      QString const value = attribute.value().toString();
      if (attribute.name() == QLatin1String("href"))
        checkReference(name, value.trimmed());
      else
        checkStyle(value, attribute.name() == QLatin1String("style"));
      bool const isOffset = attribute.name() == QLatin1String("stroke-dashoffset");
      if (isOffset || attribute.name() == QLatin1String("stroke-dasharray")) noteDashes(isOffset, value);
    }
  }

  void checkReference(QString const& element, QString const& target) {
    if (target.startsWith(QLatin1Char('#'))) {
      if (element != QLatin1String("use")) return;
      total_ << target.mid(1);
      for (QString const& id : qAsConst(openIds_))
        if (!id.isEmpty()) content_[id].uses << target.mid(1);
    } else if (target.startsWith(QLatin1String("data:"))) {
      checkImage(target);
    } else {
      refuse(Texts::tr("the SVG refers to “%1”; put what it needs into the file").arg(target.left(64)));
    }
  }

  void checkImage(QString const& target) {
    QByteArray data = QByteArray::fromBase64(target.mid(target.indexOf(QLatin1Char(',')) + 1).toLatin1());
    QBuffer buffer(&data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader image(&buffer);
    image.setDecideFormatFromContent(true);
    QByteArray const format = image.format();
    if (format != "png" && format != "jpeg" && format != "jpg")
      return refuse(Texts::tr("the SVG embeds an image that is neither PNG nor JPEG"));
    QSize const size = image.size();
    if (!size.isValid() || size.width() > maxImagePx || size.height() > maxImagePx)
      return refuse(Texts::tr("the SVG embeds an image larger than %1 × %1 pixels").arg(maxImagePx));
    int const parts = size.width() * size.height() / pixelsOfAPart;
    imageParts_ += parts;
    for (QString const& id : qAsConst(openIds_))
      if (!id.isEmpty()) content_[id].elements += parts;
  }

  // In a style sheet a backslash can hide the letters of a word.
  void checkStyle(QString const& style, bool isSheet) {
    if (style.contains(QLatin1String("@import"), Qt::CaseInsensitive) || (isSheet && style.contains(QLatin1Char('\\'))))
      return refuseHidden();
    for (QString const& target : urlsIn(style))
      if (!target.startsWith(QLatin1Char('#')))
        refuse(Texts::tr("the SVG refers to “%1”; put what it needs into the file").arg(target.left(64)));
    if (isSheet) noteDashes(style);
  }

  // Wherever a style names them, also where a comment or a string hides it from a reader, or one from another. A
  // declaration that does not end soon would have to be read again and again.
  void noteDashes(QString const& style) {
    constexpr int longest = 1000;
    QString const name = QStringLiteral("stroke-dash");
    for (int at = style.indexOf(name, 0, Qt::CaseInsensitive); at >= 0;
         at = style.indexOf(name, at + 1, Qt::CaseInsensitive)) {
      QString const rest = style.mid(at + name.size(), longest);
      QString value;
      int end = 0;
      for (; end < rest.size() && !QStringLiteral(";{}").contains(rest[end]); ++end) {
        int const close = rest.midRef(end, 2) == QLatin1String("/*") ? rest.indexOf(QLatin1String("*/"), end + 2) : -1;
        if (close >= 0)
          end = close + 1;
        else
          value += rest[end];
      }
      if (end >= longest) return refuseHidden();
      noteDashes(value.startsWith(QLatin1String("offset"), Qt::CaseInsensitive), value);
    }
  }

  // Qt reads no more than the beginning of a number that is very long.
  void noteDashes(bool isOffset, QString const& numbers) {
    constexpr int longestNumber = 64;
    static QRegularExpression const number(QStringLiteral("(\\d+\\.?\\d*|\\.\\d+)([eE][-+]?\\d+)?"));
    for (auto found = number.globalMatch(numbers); found.hasNext();) {
      QString const text = found.next().captured();
      double const size = text.toDouble();
      if (text.size() > longestNumber) farthestOffset_ = std::numeric_limits<double>::infinity();
      if (isOffset) farthestOffset_ = std::max(farthestOffset_, size);
      if (!isOffset && size > 0) shortestDash_ = std::min(shortestDash_, size);
    }
  }

  // What `use` elements repeat, repeated in turn, must come to an end, and soon.
  void checkUses() {
    double drawn = elements_ + imageParts_;
    for (QString const& id : qAsConst(total_)) drawn += expanded(id, 0);
    if (drawn > maxElements)
      refuse(Texts::tr("the SVG repeats its parts in a circle or more than %1 times").arg(maxElements));
  }

  double expanded(QString const& id, int depth) {
    if (depth > maxUseDepth) return maxElements + 1.0;
    auto const known = expanded_.constFind(id);
    if (known != expanded_.constEnd()) return *known;
    expanded_[id] = maxElements + 1.0;  // holds while its own content is counted: a circle
    double sum = content_[id].elements;
    QStringList const uses = content_[id].uses;
    for (QString const& used : uses) sum += expanded(used, depth + 1);
    return expanded_[id] = std::min(sum, maxElements + 1.0);
  }

  struct Content {
    int elements = 0;
    QStringList uses;
  };

  QXmlStreamReader reader_;
  QString problem_;
  int elements_ = 0;
  double imageParts_ = 0;
  int styleDepth_ = 0;  // at which a style sheet began that has not ended; 0 outside of one
  double farthestOffset_ = 0, shortestDash_ = std::numeric_limits<double>::infinity();
  QStringList openIds_;
  QStringList total_;
  QHash<QString, Content> content_;
  QHash<QString, double> expanded_;
};

}  // namespace

QString svgProblem(QByteArray const& svg) {
  if (svg.size() > maxBytes) return Texts::tr("the SVG has more than %1 bytes").arg(maxBytes);
  return Checker(svg).problem();
}

}  // namespace SysDisplay
