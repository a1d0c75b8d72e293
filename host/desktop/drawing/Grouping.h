#pragma once

#include <SysCarto/PageLayout.h>

class QString;

/// Whether an element is of a kind that may be a member of a group.
bool canLieInGroup(SysUtility::_ptr_t<SysCarto::Element> const& element);

/// Whether groups lie in each other at most as deep as a document can store it, once the elements are put where a
/// person works now; and the sentence that says they don't.
bool areShallow(QList<SysUtility::_ptr_t<SysCarto::Element>> const& elements, SysCarto::PageLayout const& layout);
QString tooDeep();

// The selected elements of a page become one, and the other way round. Each is one step of undo, and answers an empty
// text, or a sentence that says why nothing was done.

/// Puts a group of them where the topmost one lay; it is the selection then.
QString groupSelection(SysCarto::PageLayout& layout);

/// Whether there are two, and all of them can lie in a group.
bool canGroup(SysCarto::PageLayout const& layout);

/// Puts the members of the selected groups in their places; they are the selection then, with what else was selected.
QString ungroupSelection(SysCarto::PageLayout& layout);
bool canUngroup(SysCarto::PageLayout const& layout);
