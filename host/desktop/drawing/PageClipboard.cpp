#include "PageClipboard.h"

#include "Grouping.h"
#include "PastedContent.h"
#include "SelectionHandles.h"

#include "host/SysCarto/document/LayerClip.h"
#include "host/SysCarto/elements/Placement.h"

#include <SysFramework/HostAccess.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <memory>

using SysCarto::Element;
using SysCarto::ElementClip;
using SysCarto::PageLayout;
using SysGeometry::Envelope;
using SysUtility::_ptr_t;

namespace {

constexpr double stepCm = 0.5;
QString const mimeType = QStringLiteral("application/x-plotvane-elements+json");

Envelope boundsOf(QList<_ptr_t<Element>> const& elements) {
  Envelope bounds;
  for (auto const& element : elements) SysCarto::include(bounds, element->GetEnvelope());
  return bounds;
}

void move(QList<_ptr_t<Element>> const& elements, double dx, double dy) {
  for (auto const& element : elements) element->Move(dx, dy);
}

void centre(QList<_ptr_t<Element>> const& elements, Envelope const& area) {
  auto const from = boundsOf(elements).GetAnchorPoint(), to = area.GetAnchorPoint();
  if (from && to) move(elements, to->GetX() - from->GetX(), to->GetY() - from->GetY());
}

// In the order in which they are drawn.
QList<_ptr_t<Element>> inOrder(PageLayout const& layout, QList<_ptr_t<Element>> const& chosen) {
  QSet<SysCarto::ElementHandle> handles;
  for (auto const& element : chosen) handles << element->GetHandle();
  QList<_ptr_t<Element>> elements;
  for (auto const& element : workplace(layout).GetElements())
    if (handles.contains(element->GetHandle())) elements << element;
  return elements;
}

// One step of undo, after which they are the selection.
void add(PageLayout& layout, QString const& name, QList<_ptr_t<Element>> const& elements) {
  auto& container = workplace(layout);
  {
    SysFramework::EditorOperation const operation(name);
    container.AddElements(elements);
  }
  container.UnselectAllElements();
  for (auto const& element : elements) container.SelectElement(element);
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

}  // namespace

QString PageClipboard::put(Elements const& elements, int pasted) {
  QString problem;
  ElementClip const clip = ElementClip::of(document_, elements, problem);
  if (!problem.isEmpty()) return problem;
  auto content = std::make_unique<QMimeData>();
  content->setData(mimeType, clip.text);
  content->setText(QString::fromUtf8(clip.text));
  QGuiApplication::clipboard()->setMimeData(content.release());  // which takes it over
  copied_ = clip;
  pastedText_ = clip.text;
  pasted_ = pasted;
  return {};
}

QString PageClipboard::copy(PageLayout& layout) {
  return put(inOrder(layout, workplace(layout).GetSelectedElements()), 1);
}

QString PageClipboard::cut(PageLayout& layout) {
  auto const elements = inOrder(layout, movableSelection(layout));
  QString const problem = put(elements, 0);  // where they were there is room
  if (!problem.isEmpty()) return problem;
  {
    SysFramework::EditorOperation const operation(tr("Cut the selected elements"));
    for (auto const& element : elements) workplace(layout).DeleteElement(element);
  }
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
  return {};
}

PageClipboard::Content PageClipboard::read(PageLayout const& layout, QString& problem) const {
  QMimeData const* const clipboard = QGuiApplication::clipboard()->mimeData();
  Content const content = clipboard ? contentOf(*clipboard, layout, problem) : Content();
  if (problem.isEmpty() && content.elements.isEmpty())
    problem = tr("The clipboard holds nothing that can lie on a page; copy elements, a text or a picture.");
  bool const isInGroup = SysCarto::PageLayoutHost::openGroups(layout) > 0;
  if (problem.isEmpty() && isInGroup && !std::all_of(content.elements.begin(), content.elements.end(), canLieInGroup))
    problem = tr("Data frames and map surrounds can't lie in a group; leave the group with Escape first.");
  if (problem.isEmpty() && !areShallow(content.elements, layout)) problem = tooDeep();
  return content;
}

PageClipboard::Content PageClipboard::contentOf(QMimeData const& clipboard, PageLayout const& layout,
                                                QString& problem) const {
  QString const plain = clipboard.text();
  QByteArray own = clipboard.data(mimeType);
  if (own.isEmpty() && ElementClip::isOne(plain.toUtf8())) own = plain.toUtf8();
  if (!own.isEmpty()) return ownContent(own, layout, problem);
  if (SysCarto::LayerClip::isOne(plain.toUtf8())) {
    problem = tr("The clipboard holds layers; paste them in the contents.");
    return {};
  }
  Content content{plain.toUtf8(), {}, false};
  auto const take = [&](_ptr_t<Element> const& element) {
    if (element) content.elements << element;
  };
  for (QUrl const& url : clipboard.urls())
    if (url.isLocalFile() && problem.isEmpty()) take(pictureOfFile(url.toLocalFile(), layout, problem));
  if (!content.elements.isEmpty() || !problem.isEmpty()) return content;
  if (clipboard.hasImage() || clipboard.hasFormat(QStringLiteral("image/svg+xml")))
    take(pictureOf(clipboard, layout, problem));
  else if (clipboard.hasText())
    take(textElementOf(plain, problem));
  return content;
}

// Of what was copied here, surrounds find their maps again, as long as the document has them.
PageClipboard::Content PageClipboard::ownContent(QByteArray const& text, PageLayout const& layout,
                                                 QString& problem) const {
  ElementClip clip{text, {}};
  QList<_ptr_t<SysCarto::Map>> maps;
  layout.GetMaps(maps);
  if (text == copied_.text)
    for (auto const& map : copied_.otherMaps) clip.otherMaps << (maps.contains(map) ? map : layout.GetFocusMap());
  return {text, ElementClip::read(clip, layout.GetFocusMap(), problem), true};
}

QString PageClipboard::paste(PageLayout& layout) {
  QString problem;
  Content const content = read(layout, problem);
  if (!problem.isEmpty()) return problem;
  if (content.text != pastedText_) {
    pastedText_ = content.text;
    pasted_ = 0;
  }
  auto const view = layout.GetExtent();
  if (!content.hasPlace) centre(content.elements, *view);
  move(content.elements, pasted_ * stepCm, -pasted_ * stepCm);
  ++pasted_;
  if (!boundsOf(content.elements).Intersects(view)) centre(content.elements, *view);
  add(layout, tr("Paste"), content.elements);
  return {};
}

QString PageClipboard::pasteInPlace(PageLayout& layout) {
  QString problem;
  Content const content = read(layout, problem);
  if (problem.isEmpty() && !content.hasPlace)
    problem = tr("The clipboard holds no elements, which alone have a place; copy some.");
  if (problem.isEmpty()) add(layout, tr("Paste in place"), content.elements);
  return problem;
}

QString PageClipboard::duplicate(PageLayout& layout) {
  QString problem;
  auto const clip = ElementClip::of(document_, inOrder(layout, workplace(layout).GetSelectedElements()), problem);
  auto const elements = problem.isEmpty() ? ElementClip::read(clip, layout.GetFocusMap(), problem) : Elements();
  if (!problem.isEmpty()) return problem;
  move(elements, stepCm, -stepCm);
  add(layout, tr("Duplicate the selected elements"), elements);
  return {};
}
