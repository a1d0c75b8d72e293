#pragma once

#include <SysCarto/MapDocument.h>
#include <SysCarto/PageLayout.h>

#include <QAbstractItemModel>
#include <QHash>
#include <QIcon>

#include <memory>
#include <vector>

/// The elements of a page as rows, the topmost first, and below those of groups their members. What is changed through
/// the model is one step of undo. It shows what it was told last: `follow` takes over what has changed since.
class ElementModel final : public QAbstractItemModel {
  Q_OBJECT

public:
  enum Column { NameColumn, HiddenColumn, LockedColumn, columns };

  /// `document` is borrowed.
  explicit ElementModel(SysCarto::MapDocument const& document, QObject* parent);
  ~ElementModel() override;

  /// Answers whether anything has changed.
  bool follow();

  /// 0 for a member of a group, which has none.
  SysCarto::ElementHandle handleOf(QModelIndex const& index) const;

  /// −1 where no row shows it.
  int rowOf(SysCarto::ElementHandle handle) const { return rows_.value(handle, -1); }

  // Groups in each other, as `PageLayoutHost::openPath` tells them; no row stands for none.
  QVector<int> pathOf(QModelIndex const& group) const;
  QModelIndex groupAt(QVector<int> const& path) const;

  /// Hides or shows, locks or unlocks what is in a row of these columns.
  void toggle(QModelIndex const& index);

  /// The rows of the drag, taken from the text of their handles.
  static QString dragType() { return QStringLiteral("application/x-plotvane-rows"); }

  QModelIndex index(int row, int column, QModelIndex const& parent = {}) const override;
  QModelIndex parent(QModelIndex const& index) const override;
  int rowCount(QModelIndex const& parent = {}) const override;
  int columnCount(QModelIndex const& parent = {}) const override;
  bool hasChildren(QModelIndex const& parent = {}) const override;
  QVariant data(QModelIndex const& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  bool setData(QModelIndex const& index, QVariant const& value, int role) override;
  Qt::ItemFlags flags(QModelIndex const& index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  QStringList mimeTypes() const override { return {dragType()}; }
  QMimeData* mimeData(QModelIndexList const& indexes) const override;
  bool canDropMimeData(QMimeData const* data, Qt::DropAction action, int row, int column,
                       QModelIndex const& parent) const override;
  bool dropMimeData(QMimeData const* data, Qt::DropAction action, int row, int column,
                    QModelIndex const& parent) override;

signals:
  /// Why a change was refused, as a sentence.
  void told(QString const& sentence);

private:
  struct Node;
  using Nodes = std::vector<std::unique_ptr<Node>>;

  Node* nodeOf(QModelIndex const& index) const;
  Nodes& below(QModelIndex const& parent) const;
  void update(QModelIndex const& at, Node& node, SysUtility::_ptr_t<SysCarto::Element> const& element);
  void replaceRows(int first, int count, QList<SysUtility::_ptr_t<SysCarto::Element>> const& elements);
  void number();
  static int placeOf(Node const& node);
  QString textOf(Node const& node) const;
  QVariant iconOf(Node const& node, int column) const;
  bool set(Node const& node, char const* key, QJsonValue const& value);

  SysCarto::MapDocument const& document_;
  std::unique_ptr<Node> root_;
  QHash<SysCarto::ElementHandle, int> rows_;
  mutable QHash<QString, QIcon> icons_;
};
