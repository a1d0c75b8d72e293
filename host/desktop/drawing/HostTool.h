#pragma once

class QKeyEvent;
class QPainter;

/// What the view asks of the host's own tools, beyond what it asks of every tool.
class HostTool {
public:
  virtual ~HostTool();

  /// Paints over the page while nothing is dragged. Answers whether that stands in for the handles of the selection.
  virtual bool paintOver(QPainter&) { return false; }

  /// Whether the tool wants a key that may be a command's shortcut.
  virtual bool wants(QKeyEvent const&) const { return false; }

  /// Goes on to what is next, or back, as Tab does; false where the tool has nothing to go through.
  virtual bool step(bool) { return false; }

  /// Leaves a drag without its release: everything is as it was before the press.
  virtual void giveUp() {}

  /// Begins to change the parts of the element that is selected alone; false where the tool can't.
  virtual bool editSelected() { return false; }
};
