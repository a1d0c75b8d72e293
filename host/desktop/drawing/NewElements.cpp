#include "NewElements.h"

#include "PastedContent.h"
#include "SelectionHandles.h"

#include "host/SysCarto/elements/EmbeddedPicture.h"
#include "host/SysCarto/elements/GraphicElements.h"
#include "host/SysCarto/elements/PictureElement.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/SysUtility/Fields.h"
#include "host/desktop/NumberList.h"

#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>
#include <QFile>

#include <algorithm>

using SysCarto::Element;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

using Points = NewElementKind::Points;
using Content = NewElementKind::Content;

constexpr double usualWidthCm = 4, usualHeightCm = 3;
constexpr double minTextWidthCm = 0.5;
constexpr double usualLinePt = 0.75;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(NewElements)
};

_ptr_t<SysDisplay::LineSymbol> usualLine() {
  auto const line = make<SysDisplay::SimpleLineSymbol>();
  line->SetWidth(usualLinePt);
  return line;
}

// Without a fill, so that what lies below is still seen; white once it gets one.
_ptr_t<SysDisplay::FillSymbol> usualFill() {
  auto const fill = make<SysDisplay::SimpleFillSymbol>();
  fill->SetStyle(SysDisplay::SimpleFillStyle::Null);
  fill->SetColor(Qt::white);
  fill->SetOutlineSymbol(usualLine());
  return fill;
}

template <class Box>
_ptr_t<Box> boxed(QVector<QPointF> const& corners) {
  auto const element = make<Box>();
  element->SetGeometry(make<SysGeometry::Envelope>(corners[0].x(), corners[0].y(), corners[1].x(), corners[1].y()));
  return element;
}

template <class Box>
_ptr_t<Element> makeBox(QVector<QPointF> const& corners, NewContent const&) {
  auto const box = boxed<Box>(corners);
  box->setSymbol(usualFill());
  return box;
}

// In its own size below and beside a point, or as large as it can be in the upper left of a box.
_ptr_t<Element> placed(_ptr_t<SysCarto::PictureElement> const& picture, QVector<QPointF> const& points) {
  if (!picture) return picture;
  QRectF const box = QRectF(points.first(), points.last()).normalized();
  auto const natural = picture->GetEnvelope();
  QSizeF size(natural->GetWidth(), natural->GetHeight());
  if (points.size() > 1) size.scale(box.size(), Qt::KeepAspectRatio);
  // y runs upwards, so the bottom of the rectangle is the top of the box.
  picture->SetGeometry(
      make<SysGeometry::Envelope>(box.left(), box.bottom() - size.height(), box.left() + size.width(), box.bottom()));
  return picture;
}

_ptr_t<Element> makePicture(QVector<QPointF> const& points, NewContent const& content) {
  auto const picture = pictureOfFile(content.words, content.layout, content.problem);
  return placed(SysUtility::ptr_cast<SysCarto::PictureElement>(picture), points);
}

_ptr_t<Element> makeEmbedded(QVector<QPointF> const& points, NewContent const& content) {
  auto const picture =
      SysUtility::ptr_cast<SysCarto::PictureElement>(pictureOfFile(content.words, content.layout, content.problem));
  if (!picture) return picture;
  QFile file(content.words);
  QString const data = file.open(QIODevice::ReadOnly) ? SysCarto::embeddedPicture(file.readAll()) : QString();
  if (data.size() > SysUtility::maxCharacters(SysUtility::TextKind::Picture)) {
    content.problem = Texts::tr("%1: the picture is too large to be embedded; link it.").arg(content.words);
    return nullptr;
  }
  picture->setSource(picture->path(), data);
  return placed(picture, points);
}

_ptr_t<SysCarto::LineElement> lined(QVector<QPointF> const& vertices) {
  auto const line = make<SysCarto::LineElement>();
  line->setShape(make<SysGeometry::Polyline>(vertices));
  line->setSymbol(usualLine());
  return line;
}

_ptr_t<Element> makeLine(QVector<QPointF> const& vertices, NewContent const&) { return lined(vertices); }

_ptr_t<Element> makeArrow(QVector<QPointF> const& vertices, NewContent const&) {
  auto const arrow = lined(vertices);
  SysCarto::ArrowHeads heads;
  heads.end = SysCarto::ArrowHead::Triangle;
  arrow->setHeads(heads);
  return arrow;
}

_ptr_t<Element> makePolygon(QVector<QPointF> const& vertices, NewContent const&) {
  auto const polygon = make<SysCarto::PolygonElement>();
  polygon->setShape(make<SysGeometry::Polygon>(QVector<QVector<QPointF>>{vertices}));
  polygon->setSymbol(usualFill());
  return polygon;
}

_ptr_t<Element> makeMarker(QVector<QPointF> const& place, NewContent const&) {
  auto const marker = make<SysCarto::MarkerElement>();
  marker->setShape(make<SysGeometry::Point>(place[0].x(), place[0].y(), 0.0));
  return marker;
}

// It hangs below its place, and where a box was drawn fills its width.
_ptr_t<Element> makeText(QVector<QPointF> const& points, NewContent const& content) {
  int const max = SysUtility::maxCharacters(SysUtility::TextKind::Lines);
  if (content.words.size() > max)
    content.problem = Texts::tr("The text has %1 characters, and an element at most %2; insert a part of it.")
                          .arg(content.words.size())
                          .arg(max);
  auto const text = make<SysCarto::TextElement>();
  auto format = text->symbol()->format();
  format.vertical = SysDisplay::VerticalAlignment::Top;
  text->setSymbol(make<SysDisplay::TextSymbol>(format));
  text->setText(content.words);
  QRectF const box = QRectF(points.first(), points.last()).normalized();
  text->setPosition(box.left(), box.bottom());
  if (box.width() >= minTextWidthCm) text->setWidth(box.width());
  return text;
}

}  // namespace

QVector<NewElementKind> const& NewElementKind::all() {
  // clang-format off
  static QVector<NewElementKind> const kinds = {
      {"text",      "Host_InsertText",      QT_TRANSLATE_NOOP("NewElements", "Insert a text"),      Points::Corners,  Content::Text, 2, makeText},
      {"picture",   "Host_InsertPicture",   QT_TRANSLATE_NOOP("NewElements", "Insert a picture"),   Points::Corners,  Content::File, 2, makePicture},
      {"embedded",  nullptr,                QT_TRANSLATE_NOOP("NewElements", "Insert a picture"),   Points::Corners,  Content::File, 2, makeEmbedded},
      {"line",      "Host_InsertLine",      QT_TRANSLATE_NOOP("NewElements", "Insert a line"),      Points::Vertices, Content::None, 2, makeLine},
      {"arrow",     "Host_InsertArrow",     QT_TRANSLATE_NOOP("NewElements", "Insert an arrow"),    Points::Vertices, Content::None, 2, makeArrow},
      {"polygon",   "Host_InsertPolygon",   QT_TRANSLATE_NOOP("NewElements", "Insert a polygon"),   Points::Vertices, Content::None, 3, makePolygon},
      {"rectangle", "Host_InsertRectangle", QT_TRANSLATE_NOOP("NewElements", "Insert a rectangle"), Points::Corners,  Content::None, 2, makeBox<SysCarto::RectangleElement>},
      {"ellipse",   "Host_InsertEllipse",   QT_TRANSLATE_NOOP("NewElements", "Insert an ellipse"),  Points::Corners,  Content::None, 2, makeBox<SysCarto::EllipseElement>},
      {"marker",    "Host_InsertMarker",    QT_TRANSLATE_NOOP("NewElements", "Insert a marker"),    Points::Place,    Content::None, 1, makeMarker},
  };
  // clang-format on
  return kinds;
}

NewElementKind const* NewElementKind::named(QString const& name) {
  for (NewElementKind const& kind : all())
    if (name == QLatin1String(kind.name)) return &kind;
  return nullptr;
}

bool NewElementKind::takes(int count) const {
  return points == Points::Vertices ? count >= minPoints : count == minPoints;
}

QVector<QPointF> NewElementKind::usualPoints(QPointF const& place) const {
  QPointF const right(usualWidthCm, 0), down(0, -usualHeightCm);
  if (points == Points::Place || content != Content::None) return {place};
  if (points == Points::Corners) return {place, place + right + down};
  return isClosed() ? QVector<QPointF>{place + right / 2, place + right + down, place + down}
                    : QVector<QPointF>{place, place + right};
}

QString NewElementKind::insert(SysCarto::PageLayout& layout, QVector<QPointF> const& at, QString const& words) const {
  QString problem;
  auto const element = make(at, {layout, words, problem});
  if (!problem.isEmpty()) return problem;
  auto* const container = &workplace(layout);
  {
    SysFramework::EditorOperation const operation(Texts::tr(stepName));
    container->AddElement(element);
  }
  container->UnselectAllElements();
  container->SelectElement(element);
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
  return QString();
}

std::optional<NewElement> NewElement::of(QString const& text) {
  int const at = text.lastIndexOf(QLatin1Char('@'));
  QString const what = text.left(at), name = what.section(QLatin1Char(':'), 0, 0);
  auto const* const kind = NewElementKind::named(name);
  QString const content = what.mid(name.size() + 1);
  if (at < 0 || !kind || content.isEmpty() != (kind->content == Content::None)) return std::nullopt;
  QVector<QPointF> points;
  auto const numbers = numbersIn(text.mid(at + 1));
  for (int i = 0; i + 1 < numbers.size(); i += 2) points << QPointF(numbers[i], numbers[i + 1]);
  if (numbers.size() % 2 != 0 || !(points.size() == 1 || kind->takes(points.size()))) return std::nullopt;
  if (points.size() == 1) points = kind->usualPoints(points.first());
  return NewElement{kind, content, points};
}
