#pragma once

#include "host/SysAdapterUI/ContentsModel.h"
#include "host/SysCarto/layers/WithoutWaiting.h"

#include <QTreeView>

class QTimer;

namespace SysAdapterUI {

class TOCControl;

/// The rows of the table of contents, several of which may be chosen. Names are edited in place, layers and groups are
/// dragged, and files dropped; what comes of it is up to whoever listens.
class SYSADAPTERUI_EXPORT ContentsTree final : public QTreeView {
  Q_OBJECT

public:
  explicit ContentsTree(QWidget* parent);
  ~ContentsTree() override;

  /// That of a control, which owns it.
  static ContentsTree& of(TOCControl const& control);

  ContentsModel const& rows() const { return *model_; }

  /// What a person has chosen; the current row where nothing is. A class stands for its layer.
  QVector<SysCarto::LayerRow> chosen() const;

  /// Chooses these rows, and shows the first of them. Rows that are not there are passed over.
  void choose(QVector<SysCarto::LayerRow> const& rows);

  /// Lets the person write the name of the current row.
  void rename();

  void setContents(SysCarto::IKdxContents* contents);
  void setFocusMap(SysUtility::_ptr_t<SysCarto::Map> const& map) { model_->setFocus(map); }

  /// Shows what has changed; what is there again is as open and as chosen as it was.
  void follow();

signals:
  /// A person has chosen other rows, or clicked on one.
  void rowsChosen(QVector<SysCarto::LayerRow> const& rows);

  /// A map was chosen by its name.
  void mapChosen(SysUtility::_ptr_t<SysCarto::Map> const& map);

  /// At a place of the screen.
  void menuWanted(QPoint const& at);

  // As of the model, told when a drag is over.
  void renameWanted(SysCarto::LayerRow const& row, QString const& name);
  void rowsDropped(QVector<SysCarto::LayerRow> const& rows, SysCarto::LayerPlace const& place, bool copies);
  void filesDropped(QStringList const& files, SysCarto::LayerPlace const& place);

protected:
  bool event(QEvent* event) override;
  void selectionChanged(QItemSelection const& selected, QItemSelection const& deselected) override;
  void currentChanged(QModelIndex const& current, QModelIndex const& previous) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

private:
  template <class Change>
  void keeping(Change const& change);
  void tell();
  void followReading();

  ContentsModel* const model_;
  QTimer* const shares_;  // while features are read
  SysCarto::ReadingListener const listener_;
  bool isFollowing_ = false;
  bool isChoosing_ = false;
};

}  // namespace SysAdapterUI
