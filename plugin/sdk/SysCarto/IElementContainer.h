#pragma once

#include <SysCarto/Element.h>

#include <QList>

/// The elements of a view and which of them are selected. Owned by its view; a pointer to it is borrowed for one call.
///
/// Every operation finds its element by handle, so that a list read before a replacement still names the right
/// elements; an element that the container does not hold is ignored. Changes made while an editor operation is open are
/// undone as one step; changes outside one are not recorded. Nothing is redrawn by itself.
class SYSCARTO_EXPORT IElementContainer {
public:
  using ElementPtr = SysUtility::_ptr_t<SysCarto::Element>;

  virtual ~IElementContainer();

  /// Appends the element on top of the drawing order. An element without a handle, or whose handle is taken, gets a new
  /// one.
  virtual void AddElement(ElementPtr const& element) = 0;
  virtual void AddElements(QList<ElementPtr> const& elements) = 0;

  /// All elements, first drawn first.
  virtual QList<ElementPtr> GetElements() const = 0;
  virtual void DeleteElement(ElementPtr const& element) = 0;
  virtual int GetSelectedElementCount() const = 0;

  /// First selected first.
  virtual QList<ElementPtr> GetSelectedElements() const = 0;
  virtual void SelectElement(ElementPtr const& element) = 0;
  virtual void UnselectAllElements() = 0;
  virtual void UnselectElement(ElementPtr const& element) = 0;

  /// Puts `element` where the element with that handle was, in the drawing order and in the selection. It takes over
  /// the handle.
  virtual void ReplaceElement(SysCarto::ElementHandle handle, ElementPtr const& element) = 0;

  // Restacking keeps the relative order of the given elements. One step moves a run of neighbours as a block past the
  // next other element; what is at the end already stays.
  virtual void BringForward(QList<ElementPtr> const& elements) = 0;
  virtual void BringToFront(QList<ElementPtr> const& elements) = 0;
  virtual void SendBackward(QList<ElementPtr> const& elements) = 0;
  virtual void SendToBack(QList<ElementPtr> const& elements) = 0;

  /// Draws the elements in order. Phase 1 draws features and graphics; other phases draw nothing.
  virtual void Draw(QPainter& painter, SysUtility::_ptr_t<SysDisplay::DisplayTransformation> const& transformation,
                    int phase, SysUtility::_ptr_t<SysUI::TrackerCancel> const& cancel) = 0;
};
