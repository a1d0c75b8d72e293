#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

class DocumentSession;
class DocumentViews;
class NoticeBar;

namespace SysDisplay {
struct FontTroubles;
}

/// Sentences about fonts that are not installed, and letters that no font has.
QStringList fontNotes(SysDisplay::FontTroubles const& troubles);

/// Tells them of what a window draws, each once of a document.
class FontWatch final : public QObject {
public:
  /// All are borrowed; the bar becomes its parent.
  FontWatch(DocumentViews& views, DocumentSession& session, NoticeBar& notice);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void look();

  NoticeBar& notice_;
  QTimer soon_;
  QSet<QString> told_;
};
