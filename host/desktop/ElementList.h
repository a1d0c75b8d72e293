#pragma once

#include "DocumentSession.h"

#include <QTreeView>

class ElementModel;

/// The list of a page's elements, the topmost first: what is selected there is selected on the page, and the other way
/// round; a member of a group opens it. Names are edited in place, a click on an eye or a lock hides, shows, locks or
/// unlocks, and a drag or Alt with an arrow restacks.
class ElementList final : public QTreeView {
  Q_OBJECT

public:
  /// `session` is borrowed.
  ElementList(DocumentSession& session, QWidget* parent);
  ~ElementList() override;

  /// Shows the elements and the selection as they are now. Cheap where the list is not seen.
  void follow();

signals:
  /// A person has selected something in the list.
  void chosen();

  void told(QString const& sentence);

protected:
  void selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) override;
  QItemSelectionModel::SelectionFlags selectionCommand(QModelIndex const& index, QEvent const* event) const override;
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

private:
  void showSelection(SysCarto::PageLayout const& layout);
  void restack(bool upwards);

  DocumentSession& session_;
  ElementModel* const model_;
  QList<SysCarto::ElementHandle> shown_;  // selected here, as on the page
  bool isFollowing_ = false;
};
