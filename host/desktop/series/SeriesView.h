#pragma once

#include "SeriesPages.h"

#include "host/desktop/vector/VectorExport.h"

#include <QObject>

class DocumentSession;
class DocumentViews;

/// Which page of its series the views of a document show. Follows the document: when it, its series or the data of the
/// series become others, the pages are read anew, and the page of the same number is shown. It is shown anew when its
/// map is turned, locked or projected otherwise, and left when somebody moves the map.
class SeriesView final : public QObject {
  Q_OBJECT

public:
  /// Both are borrowed and outlive it.
  SeriesView(DocumentSession& session, DocumentViews& views);
  ~SeriesView() override;

  /// Null where the document has no series, or it can't be read, which `problem` says.
  SeriesPages const* pages();
  QString const& problem() const { return problem_; }

  /// Shows a page, from 1, or with 0 what the document stores. Answers a sentence on what could not be shown.
  QString show(int page);

  /// The same for a number, a name, “first”, “last”, “next”, “previous” or “none”.
  QString show(QString const& page);

  /// Shows all pages of which the maps have a place one after the other, for a file of them; sentences on the others
  /// are added to `problems`, which is borrowed. Whoever is done shows a page again, or none. Null where a page is
  /// shown, which then is what a file has, or there are none.
  NextPage allPages(QStringList& problems);

signals:
  /// There are other pages, or none any more.
  void replaced();

  /// Another page is shown.
  void shownChanged();

private:
  void follow();
  void followMaps();
  void read();
  quint64 version() const;
  QString coordinateSystem() const;

  DocumentSession& session_;
  DocumentViews& views_;
  std::unique_ptr<SeriesPages> pages_;
  QString problem_;
  bool isRead_ = false;
  quint64 version_ = 0;
  SysCarto::SourceSettings source_;
  QString coordinateSystem_;  // of the map, in which places of the features are
};
