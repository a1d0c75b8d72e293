#pragma once

#include "host/SysCarto/elements/TextElement.h"

#include <SysDisplay/DisplayTransformation.h>

#include <QPlainTextEdit>

#include <functional>

/// A field in which a person writes a text of the page where it stands, in its own font and at the zoom of the view.
/// Ctrl+Return and leaving the field take it, Escape gives it up; either way the field deletes itself.
class TextEditor final : public QPlainTextEdit {
  Q_OBJECT

public:
  using Taken = std::function<void(QString const& text)>;

  /// `taken` is called once, and not for a text that was given up.
  TextEditor(SysCarto::TextElement const& text, Taken const& taken, QWidget* parent);

  /// Stands where the text stands under the transformation of the view.
  void follow(SysDisplay::DisplayTransformation const& view);

  void take();
  void giveUp();

signals:
  /// What was pasted is too long; a sentence says so.
  void refused(QString const& sentence);

protected:
  void insertFromMimeData(QMimeData const* source) override;
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

private:
  void end(bool isTaken);
  void fit();

  SysUtility::_ptr_t<SysCarto::TextElement> const text_;
  Taken const taken_;
  QTransform toDevice_;
  double pixelsPerPoint_ = 1;
  bool isOver_ = false;
};
