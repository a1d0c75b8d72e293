#pragma once

#include "Identify.h"

#include <QDockWidget>

class DocumentViews;
class QTreeWidget;
class QTreeWidgetItem;

/// What was found at a place of a map. The feature whose row is current is marked in the views.
class IdentifyPanel final : public QDockWidget {
  Q_OBJECT

public:
  /// Borrowed.
  IdentifyPanel(DocumentViews& views, QWidget* parent);
  ~IdentifyPanel() override;

  void show(Identified const& found);
  void clear();

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void addPlace();
  void addFeature(int number);
  Identified::Feature const* featureOf(QTreeWidgetItem const* item) const;
  void mark(bool flashes);

  DocumentViews& views_;
  QTreeWidget* const tree_;
  Identified found_;
};
