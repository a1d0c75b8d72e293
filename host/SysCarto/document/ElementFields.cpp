#include "ElementFields.h"

#include "host/SysCarto/elements/ElementHost.h"

#include <algorithm>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Choice;
using SysUtility::Field;
using SysUtility::Fields;

namespace {

constexpr int maxElements = 1000000;
constexpr ElementHandle maxHandle = 1000000000;

// What every element has.
struct CommonSettings {
  ElementHandle handle = 0;
  QString name;
  bool hidden = false;
  bool locked = false;
  QString pages;

  static CommonSettings of(Element const& element) {
    return {element.GetHandle(), element.GetName(), !ElementHost::isSwitchedOn(element), isLocked(element),
            ElementHost::pages(element)};
  }

  void list(Fields& fields, ElementScope const& scope) {
    // A member of a group is known to no container and has no handle.
    if (scope.depth == 0) listHandle(fields, scope.context);
    fields.text({"name", QT_TRANSLATE_NOOP("Fields", "Name"),
                 QT_TRANSLATE_NOOP("Fields", "What the element is called in lists and by the command line.")},
                name, SysUtility::TextKind::Line, QString());
    fields.flag({"hidden", QT_TRANSLATE_NOOP("Fields", "Hidden"),
                 QT_TRANSLATE_NOOP("Fields", "Whether it is drawn neither on the screen nor in an export.")},
                hidden, false);
    fields.flag({"locked", QT_TRANSLATE_NOOP("Fields", "Locked"),
                 QT_TRANSLATE_NOOP("Fields", "Whether the mouse leaves it alone, and the map of a data frame.")},
                locked, false);
    if (scope.depth > 0 || scope.onMap) return;
    fields.text({"pages", QT_TRANSLATE_NOOP("Fields", "Pages"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "On which pages of a series it stands: first, last, odd, even, numbers as in "
                                   "“1-3,7”, or a condition on the attributes of the page's feature; empty for all.")},
                pages, SysUtility::TextKind::Line, QString());
  }

  void applyTo(Element& element) const {
    if (handle != 0) ElementHost::setHandle(element, handle);
    element.SetName(name);
    element.SetVisible(!hidden);
    setLocked(element, locked);
    ElementHost::setPages(element, pages);
  }

private:
  void listHandle(Fields& fields, DocumentContext& context) {
    fields.integer(
        {"handle", QT_TRANSLATE_NOOP("Fields", "Handle"),
         QT_TRANSLATE_NOOP("Fields",
                           "The number by which the element is known, which no other one has; 0 asks for a new one.")},
        handle, 0, maxHandle, 0);
    if (!fields.isReading() || !fields.ok() || handle == 0) return;
    if (context.handles.contains(handle))
      return fields.fail(
          "handle", QCoreApplication::translate("ElementFields", "%1 is another element's handle already").arg(handle));
    context.handles << handle;
  }
};

// A kind of element, and what is done with one.
struct Kind {
  Choice choice;  // its value is the kind's place in the table
  bool (*matches)(Element const&);
  void (*list)(Fields&, _ptr_t<Element>&, ElementScope const&);  // a reader replaces the element by a new one
};

template <class T, class Settings>
constexpr Kind kind(int number, char const* name, char const* caption) {
  return {{number, name, caption},
          [](Element const& element) { return dynamic_cast<T const*>(&element) != nullptr; },
          [](Fields& fields, _ptr_t<Element>& element, ElementScope const& scope) {
            auto const present = fields.isReading() ? nullptr : SysUtility::ptr_cast<T>(element);
            auto common = present ? CommonSettings::of(*element) : CommonSettings();
            auto settings = present ? Settings::of(*present, scope) : Settings();
            common.list(fields, scope);
            settings.list(fields, scope);
            if (!fields.isReading() || !fields.ok()) return;
            auto const made = SysUtility::make<T>();
            common.applyTo(*made);
            settings.applyTo(*made, scope);
            element = made;
          }};
}

// clang-format off
constexpr Kind kinds[] = {
    kind<MarkerElement, PointSettings>           (0, "marker",    QT_TRANSLATE_NOOP("Fields", "Marker")),
    kind<LineElement, LineSettings>              (1, "line",      QT_TRANSLATE_NOOP("Fields", "Line")),
    kind<PolygonElement, PolygonSettings>        (2, "polygon",   QT_TRANSLATE_NOOP("Fields", "Polygon")),
    kind<RectangleElement, FilledSettings>       (3, "rectangle", QT_TRANSLATE_NOOP("Fields", "Rectangle")),
    kind<EllipseElement, FilledSettings>         (4, "ellipse",   QT_TRANSLATE_NOOP("Fields", "Ellipse")),
    kind<TextElement, TextElementSettings>       (5, "text",      QT_TRANSLATE_NOOP("Fields", "Text")),
    kind<GroupElement, GroupSettings>            (6, "group",     QT_TRANSLATE_NOOP("Fields", "Group")),
    kind<MapFrameElement, MapFrameSettings>      (7, "dataFrame", QT_TRANSLATE_NOOP("Fields", "Data frame")),
    kind<MapSurroundFrame, SurroundFrameSettings>(8, "surround",  QT_TRANSLATE_NOOP("Fields", "Map surround")),
    kind<PictureElement, PictureSettings>        (9, "picture",   QT_TRANSLATE_NOOP("Fields", "Picture")),
};
// clang-format on

QVector<Choice> choicesOfKinds() {
  QVector<Choice> choices;
  for (Kind const& kind : kinds) choices << kind.choice;
  return choices;
}

int kindOf(Element const* element) {
  for (Kind const& kind : kinds)
    if (element && kind.matches(*element)) return kind.choice.value;
  return -1;
}

// Frames lie on the page alone: a map that lay on a map might show itself.
QString refusal(Choice const& kind, ElementScope const& scope) {
  bool const isFrame =
      QLatin1String(kind.name) == QLatin1String("dataFrame") || QLatin1String(kind.name) == QLatin1String("surround");
  if (isFrame && scope.depth > 0)
    return QCoreApplication::translate("ElementFields", "“%1” can't be part of a group").arg(QLatin1String(kind.name));
  if (isFrame && scope.onMap)
    return QCoreApplication::translate("ElementFields",
                                       "data frames and surrounds can't lie on a map, only on the page");
  return QString();
}

}  // namespace

bool isLocked(Element const& element) {
  auto const* const frame = dynamic_cast<MapFrameElement const*>(&element);
  return frame ? frame->IsLocked() : ElementHost::isLocked(element);
}

void setLocked(Element& element, bool locked) {
  if (auto* const frame = dynamic_cast<MapFrameElement*>(&element)) return frame->SetLocked(locked);
  ElementHost::setLocked(element, locked);
}

QString captionOfKind(Element const& element) {
  auto const* const frame = dynamic_cast<MapSurroundFrame const*>(&element);
  if (frame && frame->GetMapSurround()) return frame->GetMapSurround()->title();
  int const kind = kindOf(&element);
  return kind < 0 ? QString() : QCoreApplication::translate("Fields", kinds[kind].choice.caption);
}

void listElement(Fields& fields, _ptr_t<Element>& element, ElementScope const& scope) {
  static QVector<Choice> const choices = choicesOfKinds();
  int kind = fields.isReading() ? 0 : kindOf(element.get());
  if (element && kind < 0)
    return fields.fail(nullptr,
                       QCoreApplication::translate("ElementFields", "an element of a kind that can't be stored"));
  fields.variant(
      {"type", QT_TRANSLATE_NOOP("Fields", "Kind"), QT_TRANSLATE_NOOP("Fields", "What kind of element it is.")}, kind,
      choices, [&](int chosen) {
        QString const problem = refusal(choices[chosen], scope);
        if (!problem.isEmpty()) return fields.fail("type", problem);
        kinds[chosen].list(fields, element, scope);
      });
}

void listElements(Fields& fields, Field const& field, QList<_ptr_t<Element>>& elements, ElementScope const& scope) {
  fields.list(field, elements, maxElements,
              [&](Fields& own, _ptr_t<Element>& element, int) { listElement(own, element, scope); });
}

}  // namespace SysCarto
