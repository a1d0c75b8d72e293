#pragma once

#include "host/SysCarto/maps/LayerTree.h"

#include <SysAdapterUI/Export.h>
#include <SysCarto/IKdxContents.h>

#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QHash>
#include <QMimeData>

#include <memory>
#include <vector>

namespace SysAdapterUI {

/// The maps of a page as rows; below them their layers and groups, the topmost first, and below a layer its classes. It
/// shows what it was told last: `follow` takes over what has changed since. It changes the document by nothing but the
/// switches of layers and groups, and says what else a person wants.
class SYSADAPTERUI_EXPORT ContentsModel final : public QAbstractItemModel {
  Q_OBJECT

public:
  /// What stands beside the name of a layer: how much of it was read while it is, or the range of scales at which it
  /// shows, in short; empty for one that always does.
  enum Role { AsideRole = Qt::UserRole };

  explicit ContentsModel(QObject* parent);
  ~ContentsModel() override;

  /// Null shows nothing; borrowed.
  void setContents(SysCarto::IKdxContents* contents);

  /// Answers whether there are other rows now: the indexes from before are then of no use.
  bool follow();

  void setFocus(SysUtility::_ptr_t<SysCarto::Map> const& map);

  /// Icons are for that many pixels of the screen.
  void setDevicePixelRatio(double ratio) { devicePixelRatio_ = ratio; }

  /// What a row stands for, a class for its layer; without a map where there are none.
  SysCarto::LayerRow rowAt(QModelIndex const& index) const;

  /// Whether features of a layer are being read.
  bool isReading() const;

  /// Invalid where there is no such row.
  QModelIndex indexOf(SysCarto::LayerRow const& row) const;

  /// Whether the row is that of a class.
  bool isClass(QModelIndex const& index) const;

  /// Rows are dragged by their addresses, which say nothing to another process.
  static QString dragType() {
    return QStringLiteral("application/x-plotvane-layers-%1").arg(QCoreApplication::applicationPid());
  }

  QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
  QModelIndex parent(QModelIndex const& index) const override;
  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& parent = {}) const override;
  bool hasChildren(QModelIndex const& parent = {}) const override;
  QVariant data(QModelIndex const& index, int role) const override;
  bool setData(QModelIndex const& index, QVariant const& value, int role) override;
  Qt::ItemFlags flags(QModelIndex const& index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction | Qt::CopyAction; }
  Qt::DropActions supportedDragActions() const override { return Qt::MoveAction | Qt::CopyAction; }
  QStringList mimeTypes() const override { return {dragType(), QStringLiteral("text/uri-list")}; }
  QMimeData* mimeData(QModelIndexList const& indexes) const override;
  bool canDropMimeData(QMimeData const* data, Qt::DropAction action, int row, int column,
                       QModelIndex const& parent) const override;
  bool dropMimeData(QMimeData const* data, Qt::DropAction action, int row, int column,
                    QModelIndex const& parent) override;

signals:
  void renameWanted(SysCarto::LayerRow const& row, QString const& name);

  /// Rows of this model were dropped there.
  void rowsDropped(QVector<SysCarto::LayerRow> const& rows, SysCarto::LayerPlace const& place, bool copies);

  /// Files were dropped there.
  void filesDropped(QStringList const& files, SysCarto::LayerPlace const& place);

private:
  struct Node;
  using Nodes = std::vector<std::unique_ptr<Node>>;

  Node* nodeOf(QModelIndex const& index) const;
  Nodes& below(QModelIndex const& parent) const;
  void build();
  void followClasses(Node& layer);
  void tellAllChanged(Node const& parent);
  void add(Node& parent, std::vector<SysCarto::LayerEntry> const& entries);
  SysCarto::LayerPlace placeAt(int row, QModelIndex const& parent) const;
  QString textOf(Node const& node) const;
  QVariant iconOf(Node& node) const;
  QString toolTipOf(Node const& node) const;
  QString spokenOf(Node const& node) const;
  static bool isOutOfScale(Node const& node);

  SysCarto::IKdxContents* contents_ = nullptr;
  SysUtility::_ptr_t<SysCarto::Map> focus_;
  double devicePixelRatio_ = 1;
  std::unique_ptr<Node> root_;
  QHash<void const*, Node*> known_;  // by map, group or layer
};

}  // namespace SysAdapterUI
