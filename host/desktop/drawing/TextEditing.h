#pragma once

#include <SysCarto/Element.h>

class DocumentViews;

/// The text that is selected alone on the page shown; 0 where it is none.
SysCarto::ElementHandle selectedText(DocumentViews const& views);

/// Lets a person write in a text where it stands. What was written is taken over as one step of the history; a text
/// without letters is deleted. The views are borrowed and outlive the writing.
void editText(DocumentViews& views, SysCarto::ElementHandle handle);
