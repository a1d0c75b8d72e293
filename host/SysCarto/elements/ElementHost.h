#pragma once

#include <SysCarto/Element.h>

namespace SysCarto {

class ElementContainer;

/// What only the host asks and tells its elements. A container tells them their handle, and that they lie in it or,
/// with null, in none any more.
struct SYSCARTO_EXPORT ElementHost {
  static void setHandle(Element& element, ElementHandle handle);
  static void setContainer(Element& element, ElementContainer* container);
  static bool isPlaced(Element const& element);
  /// In which the element lies; null for none.
  static ElementContainer const* container(Element const& element);

  /// Whether the mouse and keys leave the element alone. A data frame has a lock of its own.
  static bool isLocked(Element const& element);
  static void setLocked(Element& element, bool locked);

  /// The element's own switch. It is visible where the page of a series that is shown is one of its pages, too.
  static bool isSwitchedOn(Element const& element);

  /// On which pages of a series it stands, as people write it; empty for all. Members of a group go with the group.
  static QString const& pages(Element const& element);
  static void setPages(Element& element, QString const& pages);

  /// A label lies in a container while it is drawn and no longer, so that its coming and going change no document. A
  /// clone is an element like others.
  static bool isLabel(Element const& element);
  static void becomeLabel(Element& element);
};

}  // namespace SysCarto
