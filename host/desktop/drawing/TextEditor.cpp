#include "TextEditor.h"

#include "host/SysDisplay/TextWrap.h"
#include "host/SysUtility/Fields.h"

#include <SysDisplay/Units.h>

#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>

#include <cmath>

using SysDisplay::HorizontalAlignment;
using SysDisplay::TextFormat;

namespace {

constexpr int marginPx = 4;  // about the letters
constexpr int minWidthPx = 24;
constexpr double farthestPx = 1e6;
constexpr double minFontPx = 5, maxFontPx = 1000;
constexpr double lightGround = 0.6;  // of a colour that is read on a dark ground

QFont fontOf(TextFormat const& format, double pixelsPerPoint) {
  QFont font(format.family);
  font.setPixelSize(qRound(qBound(minFontPx, format.size * pixelsPerPoint, maxFontPx)));
  font.setBold(format.bold);
  font.setItalic(format.italic);
  font.setLetterSpacing(QFont::AbsoluteSpacing, format.letterSpacing * pixelsPerPoint);
  return font;
}

Qt::Alignment alignmentOf(HorizontalAlignment alignment) {
  switch (alignment) {
    case HorizontalAlignment::Left: break;
    case HorizontalAlignment::Center: return Qt::AlignHCenter;
    case HorizontalAlignment::Right: return Qt::AlignRight;
  }
  return Qt::AlignLeft;
}

// A line without letters counts as one, so that the caret finds room in it.
QString measurable(QString const& text) {
  QStringList lines = text.split(QLatin1Char('\n'));
  for (QString& line : lines)
    if (line.trimmed().isEmpty()) line += QLatin1Char('x');
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

TextEditor::TextEditor(SysCarto::TextElement const& text, Taken const& taken, QWidget* parent)
    : QPlainTextEdit(parent), text_(SysUtility::ptr_cast<SysCarto::TextElement>(text.Clone())), taken_(taken) {
  setObjectName(QStringLiteral("plainTextEdit_TextOnPage"));
  setAccessibleName(tr("Text on the page"));
  setTabChangesFocus(true);
  setLineWrapMode(text.width() > 0 ? WidgetWidth : NoWrap);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFrameShape(QFrame::NoFrame);
  document()->setDocumentMargin(0);
  setViewportMargins(marginPx, marginPx, marginPx, marginPx);
  setPlainText(text.text());
  TextFormat const& format = text_->symbol()->format();
  QTextOption option = document()->defaultTextOption();
  option.setAlignment(alignmentOf(format.horizontal));
  document()->setDefaultTextOption(option);
  bool const isLight = format.color.lightnessF() > lightGround;
  setStyleSheet(QStringLiteral("QPlainTextEdit { color: %1; background: %2; border: 1px solid #1a73e8; }")
                    .arg(format.color.name(), isLight ? QStringLiteral("#303030") : QStringLiteral("#ffffff")));
  selectAll();
  // It grows after a line is added, not before.
  connect(verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(),
          [bar = verticalScrollBar()] { bar->setValue(0); });
  connect(this, &QPlainTextEdit::textChanged, this, &TextEditor::fit);
}

void TextEditor::follow(SysDisplay::DisplayTransformation const& view) {
  toDevice_ = view.ToDevice();
  pixelsPerPoint_ = view.PixelsPerPoint();
  setFont(fontOf(text_->symbol()->format(), pixelsPerPoint_));
  fit();
}

// A text that is turned on the page is written level, at its place.
void TextEditor::fit() {
  auto const at = SysUtility::ptr_cast<SysGeometry::Point>(text_->GetGeometry());
  QPointF const place = toDevice_.map(QPointF(at->GetX(), at->GetY()));
  TextFormat const& format = text_->symbol()->format();
  double const widthPt = text_->width() / SysDisplay::cmPerPoint;
  QString const broken = SysDisplay::wrapped(measurable(toPlainText()), *text_->symbol(), widthPt);
  QRectF const letters = text_->symbol()->bounds(broken);
  QRectF box(place + letters.topLeft() * pixelsPerPoint_, letters.size() * pixelsPerPoint_);
  QFontMetricsF const metrics(font());
  double const widest = [&] {
    if (widthPt > 0) return widthPt * pixelsPerPoint_;
    double width = minWidthPx;
    for (QString const& line : toPlainText().split(QLatin1Char('\n')))
      width = std::max(width, metrics.horizontalAdvance(line) + metrics.averageCharWidth());
    return width;
  }();
  double const missing = std::max(0.0, widest - box.width());
  box.adjust(format.horizontal == HorizontalAlignment::Left     ? 0
             : format.horizontal == HorizontalAlignment::Center ? -missing / 2
                                                                : -missing,
             0,
             format.horizontal == HorizontalAlignment::Left     ? missing
             : format.horizontal == HorizontalAlignment::Center ? missing / 2
                                                                : 0,
             0);
  box.setHeight(std::max(box.height(), metrics.lineSpacing() * (broken.count(QLatin1Char('\n')) + 1)));
  int const about = marginPx + 1;  // and the frame
  // Farther away it is out of sight all the same, and widgets are counted in whole numbers.
  box.moveTo(std::clamp(box.left(), -farthestPx, farthestPx), std::clamp(box.top(), -farthestPx, farthestPx));
  box.setSize(box.size().boundedTo({farthestPx, farthestPx}));
  setGeometry(box.toAlignedRect().adjusted(-about, -about, about, about));
}

// No key that a text field can use is a shortcut while it is written in; the others take the text first.
bool TextEditor::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    auto const* const key = static_cast<QKeyEvent*>(event);
    bool const ends = key->key() == Qt::Key_Escape || ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
                                                       key->modifiers().testFlag(Qt::ControlModifier));
    if (ends) {
      event->accept();
      return true;
    }
  }
  return QPlainTextEdit::event(event);
}

// What an element can't hold is refused while it can still be shortened elsewhere, and nothing written so far is lost.
void TextEditor::insertFromMimeData(QMimeData const* source) {
  int const max = SysUtility::maxCharacters(SysUtility::TextKind::Lines);
  int const size = toPlainText().size() - textCursor().selectedText().size() + source->text().size();
  if (size > max)
    emit refused(tr("With what was pasted the text has %1 characters, and an element at most %2; paste a part of it.")
                     .arg(size)
                     .arg(max));
  else
    QPlainTextEdit::insertFromMimeData(source);
}

void TextEditor::keyPressEvent(QKeyEvent* event) {
  bool const isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape)
    giveUp();
  else if (isReturn && event->modifiers().testFlag(Qt::ControlModifier))
    take();
  else
    QPlainTextEdit::keyPressEvent(event);
}

// Its own menu takes the focus for a while, and so does another program.
void TextEditor::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) take();
}

void TextEditor::take() { end(true); }
void TextEditor::giveUp() { end(false); }

void TextEditor::end(bool isTaken) {
  if (std::exchange(isOver_, true)) return;
  bool const hadFocus = hasFocus();
  hide();
  deleteLater();
  if (hadFocus && parentWidget()) parentWidget()->setFocus();
  if (isTaken) taken_(toPlainText());
}
