#include "TextEditing.h"

#include "SelectionHandles.h"

#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/elements/TextElement.h"
#include "host/desktop/DocumentViews.h"

#include <SysCarto/MapDocument.h>
#include <SysFramework/HostAccess.h>

#include <QCoreApplication>

using SysCarto::ElementHandle;
using SysCarto::PageLayout;
using SysCarto::TextElement;
using SysUtility::_ptr_t;

namespace {

_ptr_t<TextElement> textOf(PageLayout const& layout, ElementHandle handle) {
  auto const& container = workplace(layout);
  return SysUtility::ptr_cast<TextElement>(container.find(handle));
}

void deleteText(PageLayout& layout, _ptr_t<TextElement> const& text) {
  {
    SysFramework::EditorOperation const operation(QCoreApplication::translate("TextEditing", "Delete the text"));
    workplace(layout).DeleteElement(text);
  }
  layout.PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
}

}  // namespace

void editText(DocumentViews& views, ElementHandle handle) {
  auto const layout = views.GetPageLayout();
  auto const before = layout ? textOf(*layout, handle) : nullptr;
  if (!before) return;
  views.layoutView().edit(*before, [&views, handle](QString const& words) {
    auto const layout = views.GetPageLayout();
    auto const text = layout ? textOf(*layout, handle) : nullptr;
    if (!text || text->text() == words) return;
    if (words.isEmpty()) return deleteText(*layout, text);
    QStringList warnings;
    QString const problem = SysCarto::Editable::set(
        views.document(), {SysCarto::Editable::element(views.document(), handle)}, {QStringLiteral("text")},
        [&](QJsonValue const&) { return QJsonValue(words); }, warnings);
    if (!problem.isEmpty()) emit views.layoutView().told(problem + QLatin1Char('.'));
    layout->PartialRefresh(SysCarto::RefreshPhase::Elements, nullptr);
  });
}
