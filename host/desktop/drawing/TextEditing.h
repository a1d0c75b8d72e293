#pragma once

#include <SysCarto/Element.h>

class DocumentViews;

/// Lets a person write in a text where it stands. What was written is taken over as one step of the history; a text
/// without letters is deleted. The views are borrowed and outlive the writing.
void editText(DocumentViews& views, SysCarto::ElementHandle handle);
