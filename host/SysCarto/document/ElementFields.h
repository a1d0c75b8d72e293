#pragma once

#include "host/SysCarto/document/ElementSettings.h"

namespace SysCarto {

/// An element in the visitor's own object, its kind in the field "type". Reading makes a new element; after a problem
/// the pointer is as before. The context's maps must all be there, since elements refer to them by number.
SYSCARTO_EXPORT void listElement(SysUtility::Fields& fields, SysUtility::_ptr_t<Element>& element,
                                 ElementScope const& scope);

/// Whether the mouse and keys leave the element alone.
SYSCARTO_EXPORT bool isLocked(Element const& element);
SYSCARTO_EXPORT void setLocked(Element& element, bool locked);

/// What people call its kind; empty for a kind that can't be stored.
SYSCARTO_EXPORT QString captionOfKind(Element const& element);

/// The elements of a page, of a map or of a group, in drawing order.
void listElements(SysUtility::Fields& fields, SysUtility::Field const& field,
                  QList<SysUtility::_ptr_t<Element>>& elements, ElementScope const& scope);

}  // namespace SysCarto
