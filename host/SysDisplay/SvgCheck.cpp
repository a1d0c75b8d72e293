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
constexpr int pixelsOfAPart = 5000;      // so many of an embedded image take about as long to draw as an element
constexpr double mostStrokeRange = 1e9;  // 2³¹ of them away Qt steps to where the dashes begin one by one

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
    if (problem_.isEmpty() && hasDashOffset_ && widest_ > mostStrokeRange * finest_)
      refuse(
          Texts::tr("the SVG's dashes and their offset differ by more than 1 to 1,000,000,000; change "
                    "stroke-dasharray or stroke-dashoffset"));
    return problem_;
  }

private:
  void refuse(QString const& what) {
    if (problem_.isEmpty()) problem_ = what;
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
        inStyle_ = false;
        return;
      case QXmlStreamReader::Characters:
        // Text that is drawn may say anything; only a style sheet can refer to something.
        if (inStyle_) checkStyle(reader_.text().toString(), true);
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
    inStyle_ = name == QLatin1String("style");
    QXmlStreamAttributes const attributes = reader_.attributes();
    openIds_ << attributes.value(QLatin1String("id")).toString();
    for (QString const& id : qAsConst(openIds_))
      if (!id.isEmpty()) ++content_[id].elements;
    for (QXmlStreamAttribute const& attribute : attributes) {
      QString const value = attribute.value().toString();
      if (attribute.name() == QLatin1String("href"))
        checkReference(name, value.trimmed());
      else
        checkStyle(value, attribute.name() == QLatin1String("style"));
      noteStroke(attribute.name().toString(), value);
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
      return refuse(
          Texts::tr("the SVG's style sheet imports another or hides characters; put what it needs into the file"));
    for (QString const& target : urlsIn(style))
      if (!target.startsWith(QLatin1Char('#')))
        refuse(Texts::tr("the SVG refers to “%1”; put what it needs into the file").arg(target.left(64)));
    if (!isSheet || !style.contains(QLatin1String("stroke"), Qt::CaseInsensitive)) return;
    static QRegularExpression const comment(QStringLiteral("/\\*.*?(\\*/|$)"),
                                            QRegularExpression::DotMatchesEverythingOption);
    static QRegularExpression const declaration(QStringLiteral("([a-z-]+)\\s*:([^;}]*)"),
                                                QRegularExpression::CaseInsensitiveOption);
    for (auto found = declaration.globalMatch(QString(style).replace(comment, QStringLiteral(" "))); found.hasNext();) {
      QRegularExpressionMatch const match = found.next();
      noteStroke(match.captured(1).toLower(), match.captured(2));
    }
  }

  // The numbers of a stroke's width and dashes, from an attribute or a declaration in a style.
  void noteStroke(QString const& property, QString const& value) {
    bool const isOffset = property == QLatin1String("stroke-dashoffset");
    if (!isOffset && property != QLatin1String("stroke-dasharray") && property != QLatin1String("stroke-width")) return;
    static QRegularExpression const number(QStringLiteral("(\\d+\\.?\\d*|\\.\\d+)([eE][-+]?\\d+)?"));
    for (auto found = number.globalMatch(value); found.hasNext();) {
      double const size = found.next().captured().toDouble();
      if (size == 0) continue;
      hasDashOffset_ = hasDashOffset_ || isOffset;
      widest_ = std::max(widest_, size);
      finest_ = std::min(finest_, size);
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
  bool inStyle_ = false;
  bool hasDashOffset_ = false;
  double widest_ = 0, finest_ = std::numeric_limits<double>::infinity();  // of strokes and their dashes
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
