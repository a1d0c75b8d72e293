#pragma once

#include <QString>

struct StoredFormat;

/// Markdown: for each type of object a heading and a table of its fields, between two marks by which
/// `scripts/reference` finds its place in a document. What a style library has in common with documents is only named.
QString fieldReference(StoredFormat const& format);
