#pragma once

#include <SysCarto/Map.h>
#include <SysCarto/MapDocument.h>

#include <QByteArray>
#include <QList>

namespace SysCarto {

/// Elements of a page on their way to another place, as text: what a document stores of them, with the maps of data
/// frames and absolute paths.
struct SYSCARTO_EXPORT ElementClip {
  static constexpr int maxBytes = 64 * 1024 * 1024;

  QByteArray text;

  /// The maps of the document that surrounds and overviews follow whose data frames are not among the elements.
  QList<SysUtility::_ptr_t<Map>> otherMaps;

  /// Of elements of the document's page, in the order given. Without a text, and with a sentence in `problem`, where an
  /// element can't be stored or they are too large.
  static ElementClip of(MapDocument const& document, QList<SysUtility::_ptr_t<Element>> const& elements,
                        QString& problem);

  /// Whether a text means to be one, whatever else may be wrong with it.
  static bool isOne(QByteArray const& text);

  /// New elements without handles, unlocked, in their order; none, with a sentence in `problem`, where the text is not
  /// as `of` makes it. A surround or an overview without a map in `otherMaps` follows `focusMap`, which may be null.
  static QList<SysUtility::_ptr_t<Element>> read(ElementClip const& clip, SysUtility::_ptr_t<Map> const& focusMap,
                                                 QString& problem);
};

}  // namespace SysCarto
