#include "InsertTool.h"

#include "TextEditor.h"

#include "host/SysCarto/elements/Placement.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/desktop/LayoutView.h"

#include <SysFramework/HostAccess.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineF>
#include <QLocale>
#include <QMouseEvent>

#include <cmath>

using SysCarto::PageLayout;
using SysGeometry::Envelope;
using SysGeometry::Geometry;
using SysUtility::_ptr_t;
using SysUtility::make;

namespace {

constexpr double shiftStepDegrees = 45;
constexpr double sameVertexPx = 2;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(InsertTool)
};

// The foot of the point on the nearest ray from `from` that is a multiple of 45 degrees.
QPointF onRay(QPointF const& from, QPointF const& to) {
  QPointF const way = to - from;
  double const turned = std::round(QLineF(from, to).angle() / shiftStepDegrees) * shiftStepDegrees;
  QPointF const ray = QLineF::fromPolar(1, turned).p2();
  return from + ray * QPointF::dotProduct(way, ray);
}

// The longer side counts.
QPointF onSquare(QPointF const& from, QPointF const& to) {
  QPointF const way = to - from;
  double const side = std::max(std::abs(way.x()), std::abs(way.y()));
  return from + QPointF(std::copysign(side, way.x()), std::copysign(side, way.y()));
}

}  // namespace

DrawGesture::DrawGesture(PageLayout& layout, QPointF const& press, NewElementKind const& kind)
    : PageGesture(layout, press), kind_(kind), fixed_{press} {}

void DrawGesture::snapPress() {
  auto const snap = snapped(press());
  fixed_ = {press() + snap.by};
}

QString DrawGesture::numbers() const {
  auto const drawn = points();
  if (drawn.size() < 2) return QString();
  QLineF const last(drawn[drawn.size() - 2], drawn.last());
  if (kind_.points == NewElementKind::Points::Corners)
    return Texts::tr("%1 × %2 cm").arg(inCm(std::abs(last.dx())), inCm(std::abs(last.dy())));
  return Texts::tr("%1 cm, %2°").arg(inCm(last.length()), QLocale().toString(360 - last.angle(), 'f', 1));
}

void DrawGesture::addVertex() { fixed_ = points(); }

bool DrawGesture::removeVertex() {
  fixed_.removeLast();
  if (fixed_.isEmpty()) return false;
  moveTo(point(), modifiers());
  return true;
}

QPointF DrawGesture::constrained() const {
  if (!(modifiers() & Qt::ShiftModifier)) return point();
  return kind_.points == NewElementKind::Points::Corners ? onSquare(fixed_.last(), point())
                                                         : onRay(fixed_.last(), point());
}

// A hand that trembles has set one point, and a drag in one direction alone spans no box.
QVector<QPointF> DrawGesture::points() const {
  if (!hasMoved()) return fixed_;
  QPointF const last = constrained();
  double const reach = sameVertexPx / layout().GetDisplayTransformation()->ToDevice().m11();
  QPointF const way = last - fixed_.last();
  if (kind_.points == NewElementKind::Points::Place) return {last};
  bool const isFlat =
      kind_.points == NewElementKind::Points::Corners && std::min(std::abs(way.x()), std::abs(way.y())) < reach;
  bool const isSame = isFlat || QLineF(fixed_.last(), last).length() < reach;
  return isSame ? fixed_ : QVector<QPointF>(fixed_) << last;
}

QVector<_ptr_t<Geometry>> DrawGesture::outlines() const {
  auto const drawn = points();
  if (drawn.size() < 2) return {};
  if (kind_.points == NewElementKind::Points::Vertices) {
    QVector<QPointF> const ring = kind_.isClosed() ? QVector<QPointF>(drawn) << drawn.first() : drawn;
    return {make<SysGeometry::Polyline>(ring)};
  }
  auto const box = make<Envelope>(drawn[0].x(), drawn[0].y(), drawn[1].x(), drawn[1].y());
  if (QLatin1String(kind_.name) == QLatin1String("ellipse")) return {SysCarto::ellipseIn(*box)};
  return {box};
}

InsertTool::InsertTool(NewElementKind const& kind, LayoutView& view) : kind_(kind), view_(view) { enabled_ = true; }
InsertTool::~InsertTool() = default;

bool InsertTool::IsEnable() {
  auto const layout = SysFramework::activePageLayout(*hook());
  return layout && layout->GetPage();
}

bool InsertTool::Deactivate() {
  giveUp();
  return BaseTool::Deactivate();
}

void InsertTool::OnEnterEvent(QEvent*) { SetCurrentCursor(QCursor(Qt::CrossCursor)); }

void InsertTool::OnMouseDown(QMouseEvent* event) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout || event->button() != Qt::LeftButton) return;
  if (gesture_ && layout == layout_) return moveTo(*event);
  layout_ = layout;
  isFirstPress_ = true;
  gesture_ = std::make_unique<DrawGesture>(*layout, pagePoint(*layout, event->pos()), kind_);
  gesture_->setUsesAids(view_.showsAids());
  if (!gestureKeys(view_, *event).testFlag(Qt::AltModifier)) gesture_->snapPress();
}

void InsertTool::OnMouseMove(QMouseEvent* event) { moveTo(*event); }
void InsertTool::JustMouseMove(QMouseEvent* event) { moveTo(*event); }

// Another document may be shown since the first vertex was set.
void InsertTool::moveTo(QMouseEvent const& event) {
  if (gesture_ && layout_ != SysFramework::activePageLayout(*hook())) giveUp();
  if (gesture_) gesture_->moveTo(pagePoint(*layout_, event.pos()), gestureKeys(view_, event));
}

void InsertTool::OnMouseUp(QMouseEvent* event) {
  if (!gesture_ || event->button() != Qt::LeftButton) return;
  moveTo(*event);
  if (!gesture_) return;
  bool const wasFirst = std::exchange(isFirstPress_, false);
  bool const isRun = kind_.points == NewElementKind::Points::Vertices;
  if (!isRun || (wasFirst && gesture_->hasMoved() && !kind_.isClosed())) return finish();
  gesture_->addVertex();
}

void InsertTool::OnDblClick(QMouseEvent*) {
  if (gesture_) finish();
}

void InsertTool::finish() {
  auto const points = gesture_->points();
  auto const usual = kind_.usualPoints(points.first());
  bool const isDrawn = kind_.points != NewElementKind::Points::Place && kind_.takes(points.size());
  bool const isRun = kind_.points == NewElementKind::Points::Vertices;
  if (isRun && !isDrawn && points.size() > 1) return;  // two vertices are no area yet
  giveUp();
  insert(isDrawn ? points : usual);
}

void InsertTool::giveUp() {
  if (!gesture_) return;
  gesture_->cancel();
  gesture_.reset();
}

void InsertTool::insert(QVector<QPointF> const& points) {
  switch (kind_.content) {
    case NewElementKind::Content::None: return insertKind(kind_, points, QString());
    case NewElementKind::Content::Text: return write(points);
    case NewElementKind::Content::File: return choosePicture(points);
  }
}

void InsertTool::write(QVector<QPointF> const& points) {
  auto const layout = SysFramework::activePageLayout(*hook());
  QString problem;
  auto const draft = kind_.make(points, {*layout, QString(), problem});
  auto const self = SysUtility::retain(this);
  view_.edit(*SysUtility::ptr_cast<SysCarto::TextElement>(draft), [self, points](QString const& text) {
    if (!text.isEmpty()) self->insertKind(self->kind_, points, text);
  });
}

// A picture is linked where nobody asks for more, so that its file can still be changed.
void InsertTool::choosePicture(QVector<QPointF> const& points) {
  QFileDialog dialog(&view_, Texts::tr("Insert a Picture"), QString(),
                     Texts::tr("Pictures (*.png *.jpg *.jpeg *.tif *.tiff *.webp *.svg)"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  auto* const embeds = new QCheckBox(Texts::tr("Embed the picture in the document"), &dialog);
  embeds->setObjectName(QStringLiteral("checkBox_Embed"));
  if (auto* const grid = qobject_cast<QGridLayout*>(dialog.layout())) grid->addWidget(embeds, grid->rowCount(), 1);
  if (dialog.exec() != QDialog::Accepted) return;
  insertKind(embeds->isChecked() ? *NewElementKind::named(QStringLiteral("embedded")) : kind_, points,
             dialog.selectedFiles().first());
}

void InsertTool::insertKind(NewElementKind const& kind, QVector<QPointF> const& points, QString const& content) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  QString const problem = kind.insert(*layout, points, content);
  if (problem.isEmpty())
    emit view_.toolDone();
  else
    emit view_.told(problem);
}

void InsertTool::OnKeyDown(QKeyEvent* event) {
  auto const layout = SysFramework::activePageLayout(*hook());
  if (!layout) return;
  if (layout != layout_) giveUp();
  switch (event->key()) {
    case Qt::Key_Escape:
      if (gesture_)
        giveUp();
      else
        emit view_.selectingWanted();
      break;
    case Qt::Key_Backspace:
      if (gesture_ && !gesture_->removeVertex()) giveUp();
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter: {
      if (gesture_) {
        finish();
        break;
      }
      auto const middle = layout->GetExtent()->GetAnchorPoint();
      insert(kind_.usualPoints({middle->GetX(), middle->GetY()}));
      break;
    }
    default: return;
  }
  event->accept();
}
