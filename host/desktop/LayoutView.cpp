#include "LayoutView.h"

#include "drawing/Guides.h"
#include "drawing/SelectionHandles.h"
#include "drawing/SelectionWalk.h"

#include <SysCarto/Map.h>

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

using SysCarto::ActiveViewHost;
using SysCarto::PageLayout;
using SysUtility::_ptr_t;

namespace {

constexpr double scrollPerStepPx = 60;
constexpr double markGapPx = 6, markLengthPx = 14;            // beyond the handles of a selection
constexpr double maxPageScale = 100, minPageScale = 0.03451;  // as far as the zoom tools go

// Brackets about the corners of the data frame with the focus, where it is one of several.
void paintFocusMark(QPainter& painter, PageLayout const& layout) {
  QList<_ptr_t<SysCarto::Map>> maps;
  layout.GetMaps(maps);
  if (maps.size() < 2) return;
  auto const frame = layout.GetFocusMapFrameElement()->GetEnvelope();
  QRectF const place = layout.GetDisplayTransformation()
                           ->ToDevice()
                           .mapRect(QRectF(frame->GetXMin(), frame->GetYMin(), frame->GetWidth(), frame->GetHeight()))
                           .adjusted(-markGapPx, -markGapPx, markGapPx, markGapPx);
  painter.save();
  painter.setPen(QPen(QColor(0x1a, 0x73, 0xe8, 170), 2, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  for (int const x : {-1, 1})
    for (int const y : {-1, 1}) {
      QPointF const corner = place.center() + QPointF(x * place.width() / 2, y * place.height() / 2);
      QPointF const level(x * markLengthPx, 0), upright(0, y * markLengthPx);
      painter.drawPolyline(QPolygonF({corner - level, corner, corner - upright}));
    }
  painter.restore();
}

// What was selected in a list and is locked has no handles.
void paintLocked(QPainter& painter, PageLayout const& layout) {
  painter.save();
  painter.setPen(QPen(QColor(0x70, 0x78, 0x80), 1, Qt::DashLine));
  for (auto const& element : workplace(layout).GetSelectedElements()) {
    if (!isLocked(*element)) continue;
    auto const place = element->GetEnvelope();
    painter.drawRect(layout.GetDisplayTransformation()->ToDevice().mapRect(
        QRectF(place->GetXMin(), place->GetYMin(), place->GetWidth(), place->GetHeight())));
  }
  painter.restore();
}

// About the group that is open.
void paintOpenGroup(QPainter& painter, PageLayout const& layout) {
  auto const area = SysCarto::PageLayoutHost::openGroups(layout) > 0 ? areaOf(workplace(layout)) : QRectF();
  if (area.isNull()) return;
  painter.save();
  painter.setPen(QPen(QColor(0xe8, 0x71, 0x0a), 1, Qt::DashLine));
  painter.drawRect(layout.GetDisplayTransformation()->ToDevice().mapRect(area).adjusted(-markGapPx, -markGapPx,
                                                                                        markGapPx, markGapPx));
  painter.restore();
}

}  // namespace

LayoutView::LayoutView(QWidget* parent) : ViewWidget(parent) {
  setObjectName(QStringLiteral("layoutView"));
  setMinimumSize(160, 120);
}

LayoutView::~LayoutView() {
  if (layout_) ActiveViewHost::setSurface(*layout_, nullptr);
}

void LayoutView::setLayout(_ptr_t<PageLayout> const& layout) {
  if (layout == layout_) return;
  if (layout_) ActiveViewHost::setSurface(*layout_, nullptr);
  giveDragUp();
  if (editor_) editor_->giveUp();
  layout_ = layout;
  clearOverlay();
  if (layout_) {
    ActiveViewHost::setSurface(*layout_, this);
    layout_->GetDisplayTransformation()->SetDeviceFrame(rect());
    return layout_->RedrawAll(true);  // the extent that the layout came with follows the frame
  }
  refresh(SysCarto::RefreshPhase::Everything);
}

void LayoutView::setTool(_ptr_t<SysUI::ITool> const& tool) {
  giveDragUp();
  tool_ = tool;
  unsetCursor();
  enterTool();
}

void LayoutView::enterTool() {
  QEvent enter(QEvent::Enter);
  if (tool_ && layout_) tool_->OnEnterEvent(&enter);
}

// The release that would end a drag will never come, or not to its tool.
void LayoutView::giveDragUp() {
  if (std::exchange(dragging_, Qt::NoButton) == Qt::NoButton) return;
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  if (hostTool())
    hostTool()->giveUp();
  else if (tool_)
    tool_->OnKeyDown(&escape);
  clearOverlay();
  enterTool();  // a cursor of the drag goes with it
}

void LayoutView::hideEvent(QHideEvent*) { giveDragUp(); }

void LayoutView::edit(SysCarto::TextElement const& text, TextEditor::Taken const& taken) {
  finishEditing();
  if (!layout_) return;
  editor_ = new TextEditor(text, taken, this);
  editor_->follow(*layout_->GetDisplayTransformation());
  connect(this, &ViewWidget::viewChanged, editor_.data(), [this, editor = editor_.data()] {
    if (layout_) editor->follow(*layout_->GetDisplayTransformation());
  });
  connect(editor_.data(), &TextEditor::refused, this, &LayoutView::told);
  connect(editor_.data(), &QObject::destroyed, this, QOverload<>::of(&QWidget::update));
  editor_->show();
  editor_->setFocus();
  update();
}

void LayoutView::finishEditing() {
  if (editor_) editor_->take();
  editor_.clear();
}

void LayoutView::composePicture() {
  if (layout_) picture_.compose(*layout_, devicePixelRatioF());
}

bool LayoutView::continuePicture() { return layout_ && !picture_.drawSlice(*layout_, sliceMs).isEmpty(); }

void LayoutView::catchUp() {
  if (layout_ && !picture_.isCurrent(*layout_)) refresh(SysCarto::RefreshPhase::Everything);
}

void LayoutView::takeNews() { picture_.takeNews() ? refresh(SysCarto::RefreshPhase::Everything) : goOn(); }

QRectF LayoutView::placeOfPicture() const {
  if (!layout_ || !picture_.transformation()) return ViewWidget::placeOfPicture();
  return (picture_.transformation()->ToDevice().inverted() * layout_->GetDisplayTransformation()->ToDevice())
      .mapRect(QRectF(picture_.image().rect()));
}

QVector<ViewWidget::ShownMap> LayoutView::shownMaps() const {
  QVector<ShownMap> maps;
  if (!layout_) return maps;
  QTransform const toPx = layout_->GetDisplayTransformation()->ToDevice();
  for (auto const& element : layout_->GetGraphicsContainer()->GetElements()) {
    auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element);
    if (!frame || !frame->IsVisible()) continue;
    auto const place = frame->GetEnvelope();
    maps << ShownMap{frame->GetMap(),
                     toPx.mapRect(QRectF(place->GetXMin(), place->GetYMin(), place->GetWidth(), place->GetHeight()))};
  }
  return maps;
}

void LayoutView::paintOver(QPainter& painter) {
  if (!layout_) return;
  paintFocusMark(painter, *layout_);
  paintOpenGroup(painter, *layout_);
  paintLocked(painter, *layout_);
  if (editor_ || (hostTool() && hostTool()->paintOver(painter))) return;  // no handles about what is written in
  SelectionHandles(*layout_).paint(painter);
}

void LayoutView::paintAids(QPainter& painter) {
  if (layout_ && showsAids_) ::paintAids(painter, *layout_, size());
}

void LayoutView::setShowsAids(bool shows) {
  showsAids_ = shows;
  update();
}

bool LayoutView::editSelected() {
  bool const edits = layout_ && hostTool() && hostTool()->editSelected();
  if (edits) clearOverlay();
  return edits;
}

// Arrows and the tool's own keys reach the tool before a menu takes them for a shortcut; in the middle of a drag all
// do, so that no command takes away what the drag is about.
bool LayoutView::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto const key = static_cast<QKeyEvent*>(event)->key();
    bool const isArrow = key >= Qt::Key_Left && key <= Qt::Key_Down;
    bool const isPlain = !(static_cast<QKeyEvent*>(event)->modifiers() & (Qt::AltModifier | Qt::ControlModifier));
    bool const isWanted = hostTool() && layout_ && hostTool()->wants(*static_cast<QKeyEvent*>(event));
    if ((isArrow && isPlain) || key == Qt::Key_Escape || isWanted || dragging_ != Qt::NoButton) event->accept();
  }
  return ViewWidget::event(event);
}

// Tab goes through the elements before it goes on.
bool LayoutView::focusNextPrevChild(bool next) {
  bool const isFree = layout_ && dragging_ == Qt::NoButton;
  bool const isTaken = isFree && ((hostTool() && hostTool()->step(next)) || selectNeighbour(*layout_, next));
  if (isTaken) update();
  if (!isTaken) return ViewWidget::focusNextPrevChild(next);
  emit viewChanged();
  return true;
}

void LayoutView::resizeEvent(QResizeEvent*) {
  if (!layout_) return;
  layout_->GetDisplayTransformation()->SetDeviceFrame(rect());
  layout_->RedrawAll(true);
}

void LayoutView::mousePressEvent(QMouseEvent* event) {
  if (!tool_ || !layout_ || dragging_ != Qt::NoButton || event->button() == Qt::RightButton) return;
  dragging_ = event->button();
  emit pressed();
  tool_->OnMouseDown(event);
  emit viewChanged();
}

void LayoutView::mouseMoveEvent(QMouseEvent* event) {
  ViewWidget::mouseMoveEvent(event);
  if (!tool_ || !layout_) return;
  if (!(event->buttons() & dragging_)) giveDragUp();  // it ended over a dialog
  if (dragging_ != Qt::NoButton)
    tool_->OnMouseMove(event);
  else if (event->buttons() == Qt::NoButton)
    tool_->JustMouseMove(event);
}

void LayoutView::mouseReleaseEvent(QMouseEvent* event) {
  if (!tool_ || !layout_ || event->button() != dragging_) return;
  dragging_ = Qt::NoButton;
  tool_->OnMouseUp(event);
  emit viewChanged();
}

void LayoutView::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
  if (tool_ && layout_) tool_->OnDblClick(event);
  emit viewChanged();
}

void LayoutView::wheelEvent(QWheelEvent* event) {
  if (!layout_ || dragging_ != Qt::NoButton || (tool_ && tool_->OnWheelEvent(event))) return;
  if (event->modifiers() & Qt::ControlModifier)
    zoomAt(event->position().toPoint(), zoomOf(*event));
  else
    scrollBy(scrollOf(*event));
  event->accept();
}

QPoint LayoutView::scrollOf(QWheelEvent const& event) const {
  QPointF offset = event.pixelDelta();
  if (event.pixelDelta().isNull()) offset = QPointF(event.angleDelta()) * (scrollPerStepPx / wheelStep);
  return (event.modifiers() & Qt::ShiftModifier ? offset.transposed() : offset).toPoint();
}

// By whole pixels, so that the picture goes along and only what has come into view is painted.
void LayoutView::scrollBy(QPoint const& offset) {
  double const pixelsPerCm = layout_->GetDisplayTransformation()->ToDevice().m11();
  auto const extent = layout_->GetExtent();
  extent->Offset(-offset.x() / pixelsPerCm, offset.y() / pixelsPerCm);
  layout_->SetExtent(extent);
  QPointF const device = QPointF(offset) * devicePixelRatioF();
  if (isStale() || picture_.image().isNull() || device != device.toPoint()) return layout_->RedrawAll(true);
  clearOverlay();
  picture_.scroll(*layout_, device.toPoint());
  goOn();
  emit viewChanged();
}

// What lies under the mouse stays there.
void LayoutView::zoomAt(QPoint const& position, double factor) {
  double const pageScale = layout_->GetDisplayTransformation()->GetPageScale() * factor;
  if (pageScale > maxPageScale || pageScale < minPageScale) return;
  auto const at = layout_->GetDisplayTransformation()->ToMapPoint(position);
  auto const extent = layout_->GetExtent();
  auto const nearer = [factor](double centre, double side) { return centre + (side - centre) / factor; };
  extent->PutCoords(nearer(at->GetX(), extent->GetXMin()), nearer(at->GetY(), extent->GetYMin()),
                    nearer(at->GetX(), extent->GetXMax()), nearer(at->GetY(), extent->GetYMax()));
  layout_->SetExtent(extent);
  clearOverlay();
  composeAtRest();
  emit viewChanged();
}

void LayoutView::keyPressEvent(QKeyEvent* event) {
  event->ignore();
  bool const isBack = event->key() == Qt::Key_Backtab;
  if ((isBack || event->key() == Qt::Key_Tab) && event->modifiers() & Qt::ControlModifier) {
    event->accept();
    ViewWidget::focusNextPrevChild(!isBack);
    return;
  }
  if (!tool_ || !layout_) return;
  tool_->OnKeyDown(event);
  if (event->isAccepted()) emit viewChanged();
}

void LayoutView::keyReleaseEvent(QKeyEvent* event) {
  if (tool_ && layout_) tool_->OnKeyUp(event);
}

void LayoutView::enterEvent(QEvent* event) {
  if (tool_ && layout_) tool_->OnEnterEvent(event);
}

void LayoutView::leaveEvent(QEvent* event) {
  ViewWidget::leaveEvent(event);
  if (tool_ && layout_) tool_->OnLeaveEvent(event);
}

void LayoutView::contextMenuEvent(QContextMenuEvent* event) {
  if (dragging_ != Qt::NoButton || (tool_ && layout_ && tool_->OnContextMenu(event))) return;
  event->ignore();  // the window has a menu
}
