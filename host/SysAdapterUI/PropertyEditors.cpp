#include "PropertyEditors.h"

#include "ColorButton.h"

#include "host/SysCarto/elements/EmbeddedPicture.h"
#include "host/SysUtility/ScaleText.h"

#include <QAction>
#include <QColorDialog>
#include <QComboBox>
#include <QCompleter>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QStyle>
#include <QTimer>

#include <cmath>
#include <limits>

namespace SysAdapterUI {

using SysUtility::Choice;
using SysUtility::FieldInfo;
using SysUtility::TextKind;
using SysUtility::Unit;
using Kind = FieldInfo::Kind;

namespace {

constexpr int linesOfAText = 5;
constexpr qint64 maxSvgBytes = 8 * 1024 * 1024;       // more than a reader takes, so that it is the one to refuse
constexpr qint64 maxPictureBytes = 32 * 1024 * 1024;  // likewise
QLatin1String const picturePatterns(" (*.png *.jpg *.jpeg *.tif *.tiff *.webp *.svg)");

double stepOf(Unit unit) {
  return unit == Unit::Centimetre || unit == Unit::LineWidth ? 0.1 : unit == Unit::Point ? 0.5 : 1;
}

// A number, or a text that is typed as it is.
class LineField : public FieldEditor {
public:
  LineField(FieldInfo const& info, QLineEdit* edit) : FieldEditor(edit), info_(info), edit_(edit) {
    edit->setFrame(false);
    edit->setMaxLength(std::numeric_limits<int>::max());  // a line may have any count of points
    if (isNumber()) edit->installEventFilter(this);
  }

  void show(QVariant const& value) override {
    edit_->setText(shown(value));
    edit_->selectAll();
    edit_->setModified(false);
    first_ = edit_->text();
  }
  // A suggestion that was chosen does not count as typed.
  bool isChanged() const override { return edit_->isModified() || edit_->text() != first_; }
  QString text() const override { return edit_->text(); }

  // A comma or a point, whatever the language.
  QJsonValue value() const override {
    if (isList()) return list();
    if (!isNumber()) return edit_->text();
    bool const isScale = info_.rules.range.unit == Unit::ScaleDenominator;
    auto const scale = isScale ? SysUtility::scaleDenominatorOf(edit_->text()) : std::nullopt;
    auto const number = scale ? scale : numberIn(edit_->text());
    return number ? QJsonValue(*number) : QJsonValue(edit_->text());
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto const* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    if (!key || (key->key() != Qt::Key_Up && key->key() != Qt::Key_Down))
      return FieldEditor::eventFilter(watched, event);
    auto const number = numberIn(edit_->text());
    double const step = info_.kind == Kind::Integer ? 1 : stepOf(info_.rules.range.unit);
    double const factor = key->modifiers() & Qt::ShiftModifier ? 10 : 1;
    double const by = key->key() == Qt::Key_Up ? step * factor : -step * factor;
    if (number) {
      edit_->setText(
          shown(qBound(info_.rules.range.min, std::round((*number + by) * 1e6) / 1e6, info_.rules.range.max)));
      edit_->setModified(true);
    }
    return true;
  }

private:
  bool isNumber() const { return info_.kind == Kind::Number || info_.kind == Kind::Integer; }

  static std::optional<double> numberIn(QString text) {
    text = text.trimmed().replace(QLatin1Char(','), QLatin1Char('.')).replace(QChar(0x2212), QLatin1Char('-'));
    bool isNumber = false;
    double const number = text.toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
  }

  bool isList() const { return info_.kind == Kind::Coordinates || info_.kind == Kind::NumberList; }

  // Between semicolons as they are shown, between commas as JSON has them, or between blanks.
  QJsonValue list() const {
    QString const text = edit_->text();
    QJsonDocument const json = QJsonDocument::fromJson('[' + text.toUtf8() + ']');
    if (json.isArray()) return json.array();
    static QRegularExpression const blanks(QStringLiteral("\\s+"));
    QJsonArray list;
    for (QString const& part : text.contains(QLatin1Char(';')) ? text.split(QLatin1Char(';')) : text.split(blanks)) {
      auto const number = numberIn(part);
      if (!number) return text;
      list.append(*number);
    }
    return list;
  }

  QString shown(QVariant const& value) const {
    if (isList() && value.type() == QVariant::List) {
      QStringList numbers;
      for (QVariant const& number : value.toList()) numbers << numberText(number.toDouble());
      return numbers.join(QStringLiteral("; "));
    }
    if (!isNumber() || value.type() == QVariant::String) return value.toString();
    return numberText(value.toDouble());
  }

  static QString numberText(double number) {
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(number, 'g', QLocale::FloatingPointShortest);
  }

  FieldInfo const info_;
  QLineEdit* const edit_;
  QString first_;
};

// Texts of many lines, and lists with a text on each line.
class LinesField final : public FieldEditor {
public:
  LinesField(FieldInfo const& info, QPlainTextEdit* edit) : FieldEditor(edit), info_(info), edit_(edit) {
    edit->setFixedHeight(linesOfAText * edit->fontMetrics().lineSpacing() + 10);
    edit->setTabChangesFocus(true);
    edit->installEventFilter(this);
  }

  void show(QVariant const& value) override {
    edit_->setPlainText(value.type() == QVariant::List ? value.toStringList().join(QLatin1Char('\n'))
                                                       : value.toString());
    edit_->document()->setModified(false);
  }
  bool isChanged() const override { return edit_->document()->isModified(); }
  QString text() const override { return edit_->toPlainText(); }
  QJsonValue value() const override {
    if (info_.kind != Kind::Texts) return text();
    return QJsonArray::fromStringList(text().isEmpty() ? QStringList() : text().split(QLatin1Char('\n')));
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto const* const key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event) : nullptr;
    bool const isReturn = key && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
    if (!isReturn || !(key->modifiers() & Qt::ControlModifier)) return FieldEditor::eventFilter(watched, event);
    emit finished();
    return true;
  }

private:
  FieldInfo const info_;
  QPlainTextEdit* const edit_;
};

class ChoiceField final : public FieldEditor {
public:
  ChoiceField(FieldInfo const& info, QComboBox* box) : FieldEditor(box), box_(box) {
    for (Choice const& choice : info.choices) {
      // Of what is no field of a document, the number counts.
      bool const isNamed = choice.name && *choice.name;
      box->addItem(isNamed ? QCoreApplication::translate("Fields", choice.caption)
                           : QCoreApplication::translate("SysAdapterUI::PropertyModel", choice.caption),
                   isNamed ? QVariant(QString::fromUtf8(choice.name)) : QVariant(choice.value));
    }
    box->setCurrentIndex(-1);
    QTimer::singleShot(0, box, [box] { box->showPopup(); });  // in which keys choose nothing for good
    connect(box, QOverload<int>::of(&QComboBox::activated), this, [this] {
      isChosen_ = true;
      emit finished();
    });
  }

  void show(QVariant const& value) override {
    int const known = box_->findData(value.type() == QVariant::String ? value : QVariant(value.toInt()));
    box_->setCurrentIndex(known);
    isChosen_ = false;
    shown_ = known;
  }
  bool isChanged() const override { return isChosen_ || box_->currentIndex() != shown_; }
  QString text() const override { return box_->currentText(); }
  QJsonValue value() const override { return QJsonValue::fromVariant(box_->currentData()); }

private:
  QComboBox* const box_;
  bool isChosen_ = false;
  int shown_ = -1;
};

// A text that a button in its field helps to enter.
class ButtonField final : public LineField {
public:
  ButtonField(FieldInfo const& info, Choose choose, QLineEdit* edit)
      : LineField(info, edit), kind_(info.rules.textKind), choose_(std::move(choose)), edit_(edit) {
    QString const help = kind_ == TextKind::Color              ? FieldEditor::tr("Choose a colour")
                         : kind_ == TextKind::CoordinateSystem ? FieldEditor::tr("Choose a coordinate system")
                         : kind_ == TextKind::Condition        ? FieldEditor::tr("Write it with the fields at hand")
                                                               : FieldEditor::tr("Choose a file");
    button_ = edit->addAction(edit->style()->standardIcon(QStyle::SP_DirOpenIcon), QLineEdit::TrailingPosition);
    button_->setShortcut(Qt::ALT + Qt::Key_Down);
    button_->setToolTip(QStringLiteral("%1 (%2)").arg(help, button_->shortcut().toString(QKeySequence::NativeText)));
    button_->setShortcutContext(Qt::WidgetShortcut);
    edit->setReadOnly(holdsFile());
    connect(button_, &QAction::triggered, this, &ButtonField::choose);
  }

  void show(QVariant const& value) override {
    text_ = value.toString();
    isTaken_ = false;
    LineField::show(holdsFile() && !text_.isEmpty() ? FieldEditor::tr("%1 characters").arg(text_.size()) : text_);
    if (kind_ == TextKind::Color) button_->setIcon(colorIcon(QColor(text_), edit_->palette().color(QPalette::Dark)));
  }
  bool isChanged() const override { return isTaken_ || LineField::isChanged(); }
  QString text() const override { return holdsFile() ? text_ : edit_->text(); }
  QJsonValue value() const override { return text(); }

private:
  // The content of a file, which nobody types.
  bool holdsFile() const { return kind_ == TextKind::Svg || kind_ == TextKind::Picture; }

  void take(QString const& text) {
    text_ = text;
    edit_->setText(text);
    isTaken_ = true;
    emit finished();
  }

  void choose() {
    if (kind_ == TextKind::Color) return chooseColor();
    if (kind_ != TextKind::CoordinateSystem && kind_ != TextKind::Condition) return chooseFile();
    auto const chosen = choose_(edit_->text(), edit_);
    if (chosen) take(*chosen);
  }

  void chooseColor() {
    QColor const chosen = QColorDialog::getColor(QColor(edit_->text()), edit_, FieldEditor::tr("Choose Colour"),
                                                 QColorDialog::ShowAlphaChannel);
    if (chosen.isValid()) take(chosen.name(chosen.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb));
  }

  void chooseFile() {
    QString const filter = kind_ == TextKind::Svg       ? FieldEditor::tr("Pictures (*.svg)")
                           : kind_ == TextKind::Picture ? FieldEditor::tr("Pictures") + picturePatterns
                                                        : QString();
    QString const folder = holdsFile() ? QString() : QFileInfo(text_).path();
    QString const path = QFileDialog::getOpenFileName(edit_, FieldEditor::tr("Choose a File"), folder, filter);
    if (path.isEmpty()) return;
    if (!holdsFile()) return take(path);
    QFile file(path);
    QByteArray const content = file.open(QIODevice::ReadOnly)
                                   ? file.read(kind_ == TextKind::Svg ? maxSvgBytes : maxPictureBytes)
                                   : QByteArray();
    QString const text = kind_ == TextKind::Svg ? QString::fromUtf8(content) : SysCarto::embeddedPicture(content);
    take(text.isEmpty() ? path : text);  // a reader says what is wrong
  }

  TextKind const kind_;
  Choose const choose_;
  QLineEdit* const edit_;
  QAction* button_ = nullptr;
  QString text_;
  bool isTaken_ = false;
};

bool hasButton(TextKind kind, bool canBeChosen) {
  return kind == TextKind::Color || kind == TextKind::File || kind == TextKind::Svg || kind == TextKind::Picture ||
         canBeChosen;
}

}  // namespace

FieldEditor::FieldEditor(QWidget* widget) : QObject(widget), widget_(widget) {}

FieldEditor* FieldEditor::of(QWidget* widget) {
  return widget->findChild<FieldEditor*>(QString(), Qt::FindDirectChildrenOnly);
}

FieldEditor* FieldEditor::create(FieldInfo const& info, QStringList const& suggestions, Choose const& choose,
                                 QWidget* parent) {
  bool const isText = info.kind == Kind::Text;
  if (info.kind == Kind::Choice || info.kind == Kind::Variant) return new ChoiceField(info, new QComboBox(parent));
  if (info.kind == Kind::Texts || (isText && info.rules.textKind == TextKind::Lines))
    return new LinesField(info, new QPlainTextEdit(parent));
  bool const canBeChosen = static_cast<bool>(choose);
  if (isText && hasButton(info.rules.textKind, canBeChosen))
    return new ButtonField(info, choose, new QLineEdit(parent));
  auto* const line = new QLineEdit(parent);
  auto* const field = new LineField(info, line);
  if (!suggestions.isEmpty()) {
    auto* const completer = new QCompleter(suggestions, line);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    line->setCompleter(completer);
    QTimer::singleShot(0, completer, [completer] { completer->complete(); });
    // The line has the text by then.
    connect(completer, QOverload<QString const&>::of(&QCompleter::activated), field, &FieldEditor::finished,
            Qt::QueuedConnection);
  }
  return field;
}

}  // namespace SysAdapterUI
