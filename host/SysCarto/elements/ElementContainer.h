#pragma once

#include "host/SysCarto/elements/Placeholders.h"
#include "host/SysUtility/ChangeMark.h"

#include <SysCarto/IElementContainer.h>

#include <QHash>
#include <QMap>
#include <QPointer>
#include <QSet>

#include <algorithm>
#include <functional>
#include <memory>

class QUndoStack;

namespace SysCarto {

/// The elements of a view in their drawing order. Adding, replacing and deleting one costs a logarithm, since an export
/// adds and deletes the labels of a whole map.
class SYSCARTO_EXPORT ElementContainer final : public IElementContainer {
public:
  /// The drawing order, first drawn first, as it was at some time. Copies share their memory until one changes.
  struct Order {
    QMap<qint64, ElementPtr> elements;
    QHash<ElementHandle, qint64> ranks;
  };

  ElementContainer();
  ~ElementContainer() override;
  ElementContainer(ElementContainer const&) = delete;
  ElementContainer& operator=(ElementContainer const&) = delete;

  void AddElement(ElementPtr const& element) override;
  void AddElements(QList<ElementPtr> const& elements) override;
  QList<ElementPtr> GetElements() const override;
  void DeleteElement(ElementPtr const& element) override;
  int GetSelectedElementCount() const override;
  QList<ElementPtr> GetSelectedElements() const override;
  void SelectElement(ElementPtr const& element) override;
  void UnselectAllElements() override;
  void UnselectElement(ElementPtr const& element) override;
  void ReplaceElement(ElementHandle handle, ElementPtr const& element) override;
  void BringForward(QList<ElementPtr> const& elements) override;
  void BringToFront(QList<ElementPtr> const& elements) override;
  void SendBackward(QList<ElementPtr> const& elements) override;
  void SendToBack(QList<ElementPtr> const& elements) override;
  void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation, int phase,
            SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) override;

  /// Empty pointer where there is none of that handle.
  ElementPtr find(ElementHandle handle) const;

  /// Makes these the elements, in this drawing order, as one change: what is not among them goes, and what is new gets
  /// a handle as in `AddElement`.
  void setElements(QList<ElementPtr> const& elements);

  /// For the members of a group that is open: `write` is called at the end of each operation that has changed them, and
  /// its changes are a part of the same step. The history then knows nothing of this container itself.
  void setOwner(std::function<void()> write) { owner_ = std::move(write); }
  std::function<void()> const& owner() const { return owner_; }

  /// Handles that the container gives are higher.
  void setLowestHandle(ElementHandle handle) { lastHandle_ = std::max(lastHandle_, handle); }

  // For the undo history.

  Order const& order() const { return order_; }

  /// Puts another order in place of the present one, which `other` receives. What vanishes is no longer selected.
  void exchange(Order& other);

  /// Expires with the container.
  std::weak_ptr<ElementContainer*> token() const { return token_; }

  /// The history with steps about this container, borrowed, or null: it is cleared where an element is moved outside
  /// them. An older step would bring back places from before.
  void setHistory(QUndoStack* history);
  QUndoStack* history() const;

  /// What the placeholders in its texts stand for; null where texts stand as written.
  std::shared_ptr<Placeholders> const& placeholders() const { return placeholders_; }
  void setPlaceholders(std::shared_ptr<Placeholders> const& placeholders);

  /// Tells whether elements with these pages stand on the page of a series that is shown; null while none is.
  void setPageFilter(std::function<bool(QString const& pages)> filter) { pageFilter_ = std::move(filter); }
  bool isOnPage(QString const& pages) const { return pages.isEmpty() || !pageFilter_ || pageFilter_(pages); }

  /// When an element came, went or changed outside an operation; but labels come and go with a drawing.
  quint64 lastChange() const { return change_.time(); }

  // An element tells these.

  void elementChanged() { change_.raise(); }
  void elementMoved();

private:
  using Restacking = QList<ElementPtr> (*)(QList<ElementPtr>, QSet<ElementHandle> const&);
  void restack(QList<ElementPtr> const& elements, Restacking restacked);
  bool holds(ElementPtr const& element) const;
  void changing(bool stays = true);
  ElementHandle freeHandle(ElementHandle wanted);

  Order order_;
  QList<ElementHandle> selection_;
  QSet<ElementHandle> selected_;  // the same, to be asked
  ElementHandle lastHandle_ = 0;
  SysUtility::ChangeMark change_;
  QPointer<QUndoStack> history_;
  std::function<void()> owner_;
  std::shared_ptr<Placeholders> placeholders_;
  std::function<bool(QString const&)> pageFilter_;
  std::shared_ptr<ElementContainer*> token_;
};

}  // namespace SysCarto
