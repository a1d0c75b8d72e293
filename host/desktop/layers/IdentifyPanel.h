#pragma once

#include "Identify.h"

#include <QDockWidget>

class DocumentSession;
class DocumentViews;
class QTreeWidget;
class QTreeWidgetItem;

/// What was found at a place of a map. The feature whose row is current is marked in the views.
class IdentifyPanel final : public QDockWidget {
  Q_OBJECT

public:
  /// Both are borrowed.
  IdentifyPanel(DocumentSession& session, DocumentViews& views, QWidget* parent);
  ~IdentifyPanel() override;

  void show(Identified const& found);

  /// Shows nothing any more where the map or one of the layers has gone.
  void follow();

signals:
  /// A sentence for the person.
  void told(QString const& sentence);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void clear();
  void zoomTo(Identified::Feature const& feature);
  void addPlace();
  void addFeature(int number);
  Identified::Feature const* featureOf(QTreeWidgetItem const* item) const;
  void mark(bool flashes);

  DocumentSession& session_;
  DocumentViews& views_;
  QTreeWidget* const tree_;
  Identified found_;
};
