#pragma once

#include <SysUI/TrackerCancel.h>

#include <QElapsedTimer>
#include <QProgressDialog>

class DocumentViews;

/// Shows that a page is drawn for elsewhere, and lets a person have enough of it: whoever draws asks whether to go on,
/// and the window is looked after then. The views' maps wait, since they share what layers keep of a drawing.
class DrawingProgress final : public SysUI::TrackerCancel {
public:
  /// Both are borrowed.
  DrawingProgress(QString const& what, DocumentViews& views, QWidget& parent);
  ~DrawingProgress() override;

  bool IsCanced() const override;

  /// What is being drawn.
  void tell(QString const& what) { dialog_.setLabelText(what); }

  /// Whether a person had enough of it.
  bool wasStopped() const { return dialog_.wasCanceled(); }

private:
  DocumentViews& views_;
  mutable QProgressDialog dialog_;
  mutable QElapsedTimer sinceLook_;
};
