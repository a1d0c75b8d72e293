#pragma once

#include "PagePicture.h"
#include "ViewWidget.h"
#include "drawing/HostTool.h"
#include "drawing/TextEditor.h"

#include <SysUI/ITool.h>

#include <QMouseEvent>
#include <QPointer>

/// The screen of a page layout. Mouse and keys go to the current tool.
class LayoutView final : public ViewWidget {
  Q_OBJECT

public:
  explicit LayoutView(QWidget* parent);
  ~LayoutView() override;

  /// Shows another layout with the extent that it has; an empty pointer shows none.
  void setLayout(SysUtility::_ptr_t<SysCarto::PageLayout> const& layout);
  SysUtility::_ptr_t<SysCarto::PageLayout> const& layout() const { return layout_; }

  /// The tool that receives events from now on; may be empty.
  void setTool(SysUtility::_ptr_t<SysUI::ITool> const& tool);

  /// Redraws where a map has come to look otherwise and nobody has asked for it: commands put labels into maps and take
  /// them out again while events are handled.
  void catchUp();

  /// Lets a person write a text of the page where it stands. What another text is written in is taken first.
  void edit(SysCarto::TextElement const& text, TextEditor::Taken const& taken);

  /// Takes a text that is being written.
  void finishEditing();

  /// Whether gestures are drawn to lines of the page, without Alt or with it.
  bool snaps() const { return snaps_; }
  void setSnaps(bool snaps) { snaps_ = snaps; }

  /// Whether margins, guides and the grid of the page are shown.
  bool showsAids() const { return showsAids_; }
  void setShowsAids(bool shows);

  /// Begins to change the parts of the element that is selected alone, as the current tool does; false where it can't.
  bool editSelected();

  QVector<ShownMap> shownMaps() const override;
  bool isComplete() const override { return picture_.isComplete(); }
  void takeNews() override;
  int drawnTiles() const { return picture_.drawnTiles(); }

signals:
  /// The current tool has done what it was chosen for.
  void toolDone();

  /// The tool that selects is to be the current one, whatever another was chosen for.
  void selectingWanted();

  /// The properties of what is selected are to be shown.
  void propertiesWanted();

  /// A sentence for the person: why a gesture did nothing.
  void told(QString const& sentence);

protected:
  void composePicture() override;
  bool continuePicture() override;
  bool canGoOn() const override { return picture_.canGoOn(); }
  QImage const& picture() const override { return picture_.image(); }
  QRectF placeOfPicture() const override;
  void paintAids(QPainter& painter) override;
  void paintOver(QPainter& painter) override;

  bool event(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void enterEvent(QEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  HostTool* hostTool() const { return dynamic_cast<HostTool*>(tool_.get()); }
  void giveDragUp();
  void enterTool();
  void scrollBy(QPoint const& offset);
  QPoint scrollOf(QWheelEvent const& event) const;
  void zoomAt(QPoint const& position, double factor);

  SysUtility::_ptr_t<SysCarto::PageLayout> layout_;
  SysUtility::_ptr_t<SysUI::ITool> tool_;
  Qt::MouseButton dragging_ = Qt::NoButton;  // a tool's drag begins and ends with the same button
  bool snaps_ = true;
  bool showsAids_ = true;
  PagePicture picture_;
  QPointer<TextEditor> editor_;
};

/// The keys that are held during a gesture. Alt says that nothing is drawn to lines, whatever it means for the view.
inline Qt::KeyboardModifiers gestureKeys(LayoutView const& view, QMouseEvent const& event) {
  return view.snaps() ? event.modifiers() : event.modifiers() ^ Qt::AltModifier;
}
