#pragma once

#include "host/SysCarto/document/ElementClip.h"

#include <SysCarto/PageLayout.h>

#include <QCoreApplication>

class QMimeData;

/// Elements of a page through the clipboard of the desktop. Each function answers an empty text, or a sentence that
/// says why nothing was done.
///
/// What is copied lies there as text of its own type and as plain text. What comes from elsewhere becomes an element: a
/// text, an embedded picture, or a linked one for the file of a picture.
class PageClipboard {
  Q_DECLARE_TR_FUNCTIONS(PageClipboard)

public:
  /// `document` is borrowed.
  explicit PageClipboard(SysCarto::MapDocument const& document) : document_(document) {}

  QString copy(SysCarto::PageLayout& layout);
  QString cut(SysCarto::PageLayout& layout);

  /// Each time a little lower right than before, and in the view.
  QString paste(SysCarto::PageLayout& layout);
  QString pasteInPlace(SysCarto::PageLayout& layout);

  /// Copies the selection beside itself; the clipboard stays as it is.
  QString duplicate(SysCarto::PageLayout& layout);

private:
  using Elements = QList<SysUtility::_ptr_t<SysCarto::Element>>;

  // What can be pasted.
  struct Content {
    QByteArray text;  // the same for the same content
    Elements elements;
    bool hasPlace = false;
  };
  QString put(Elements const& elements, int pasted);
  Content read(SysCarto::PageLayout const& layout, QString& problem) const;
  Content contentOf(QMimeData const& clipboard, SysCarto::PageLayout const& layout, QString& problem) const;
  Content ownContent(QByteArray const& text, SysCarto::PageLayout const& layout, QString& problem) const;

  SysCarto::MapDocument const& document_;
  SysCarto::ElementClip copied_;  // what was put on the clipboard here
  QByteArray pastedText_;         // what `pasted_` counts
  int pasted_ = 0;
};
