#include "DialogAnswers.h"

#include "Console.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDoubleValidator>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTimer>

#include <optional>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DialogAnswers)
};

QString plain(QString text) { return text.remove(QLatin1Char('&')); }
bool isSame(QString const& text, QString const& value) { return plain(text).compare(value, Qt::CaseInsensitive) == 0; }

// Each answers whether the widget has taken the value.

// Key by key, so that the validator and the slots see what they see of a person. A field that can't be typed into is
// filled as the button beside it would.
bool type(QLineEdit& edit, QString const& value) {
  if (edit.isReadOnly()) {
    edit.setText(value);
    return true;
  }
  edit.setFocus();
  edit.selectAll();
  if (value.isEmpty()) edit.del();
  for (QChar const character : value) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QApplication::sendEvent(&edit, &press);
  }
  bool const taken = edit.text() == value;
  QMetaObject::invokeMethod(&edit, "editingFinished");
  return taken;
}

std::optional<bool> isOn(QString const& value) {
  bool const isOff = isSame(QStringLiteral("off"), value);
  return isOff || isSame(QStringLiteral("on"), value) ? std::optional(!isOff) : std::nullopt;
}

bool press(QAbstractButton& button, QString const& value) {
  auto const wanted = isOn(value);
  if (button.isCheckable() ? !wanted : wanted == false) return false;
  if (!button.isCheckable() || button.isChecked() != wanted) button.click();
  return true;
}

bool press(QGroupBox& box, QString const& value) {
  auto const wanted = isOn(value);
  if (!box.isCheckable() || !wanted) return false;
  if (box.isChecked() == wanted) return true;
  for (auto const type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent space(type, Qt::Key_Space, Qt::NoModifier);
    QApplication::sendEvent(&box, &space);
  }
  return true;
}

bool choose(QComboBox& box, QString const& value) {
  for (int i = 0; i < box.count(); ++i)
    if (isSame(box.itemText(i), value)) {
      box.setCurrentIndex(i);
      QMetaObject::invokeMethod(&box, "activated", Q_ARG(int, i));
      return true;
    }
  return box.isEditable() && type(*box.lineEdit(), value);
}

bool choose(QAbstractItemView& view, QString const& value) {
  auto const* const model = view.model();
  if (!model) return false;
  auto const found = model->match(model->index(0, 0), Qt::DisplayRole, value, 1, Qt::MatchFixedString);
  if (found.isEmpty()) return false;
  view.setCurrentIndex(found.first());
  return true;
}

bool choose(QTabWidget& tabs, QString const& value) {
  for (int i = 0; i < tabs.count(); ++i)
    if (isSame(tabs.tabText(i), value)) {
      tabs.setCurrentIndex(i);
      return true;
    }
  return false;
}

template <class Box>
bool setNumber(Box& box, double number, bool isNumber) {
  if (isNumber) box.setValue(number);
  return isNumber && qFuzzyCompare(1 + double(box.value()), 1 + number);
}

bool setValue(QWidget& widget, QString const& value) {
  bool isNumber = false;
  double const number = value.toDouble(&isNumber);
  if (auto* const edit = qobject_cast<QLineEdit*>(&widget)) return type(*edit, value);
  if (auto* const edit = qobject_cast<QPlainTextEdit*>(&widget)) {
    edit->setPlainText(value);
    return !edit->isReadOnly();
  }
  if (auto* const button = qobject_cast<QAbstractButton*>(&widget)) return press(*button, value);
  if (auto* const box = qobject_cast<QGroupBox*>(&widget)) return press(*box, value);
  if (auto* const box = qobject_cast<QComboBox*>(&widget)) return choose(*box, value);
  if (auto* const view = qobject_cast<QAbstractItemView*>(&widget)) return choose(*view, value);
  if (auto* const tabs = qobject_cast<QTabWidget*>(&widget)) return choose(*tabs, value);
  if (auto* const box = qobject_cast<QSpinBox*>(&widget)) return setNumber(*box, number, isNumber);
  if (auto* const box = qobject_cast<QDoubleSpinBox*>(&widget)) return setNumber(*box, number, isNumber);
  if (auto* const slider = qobject_cast<QSlider*>(&widget)) return setNumber(*slider, number, isNumber);
  return false;
}

QPushButton* buttonOf(QDialog const& dialog, QString const& text) {
  for (QPushButton* button : dialog.findChildren<QPushButton*>())
    if (button->isVisible() && isSame(button->text(), text)) return button;
  return nullptr;
}

// By its text, or by its English name in any language.
QPushButton* buttonOf(QMessageBox const& box, QString const& text) {
  auto const names = QMetaEnum::fromType<QMessageBox::StandardButtons>();
  for (QAbstractButton* button : box.buttons())
    if (isSame(QLatin1String(names.valueToKey(box.standardButton(button))), text))
      return qobject_cast<QPushButton*>(button);
  return buttonOf(static_cast<QDialog const&>(box), text);
}

// The one that accepts the dialog. In some languages it does not say OK, but it is the default button.
QPushButton* acceptingButtonOf(QDialog const& dialog) {
  if (QPushButton* const ok = buttonOf(dialog, QStringLiteral("OK"))) return ok;
  for (QPushButton* button : dialog.findChildren<QPushButton*>())
    if (button->isVisible() && button->isDefault()) return button;
  return nullptr;
}

// The widget that an answer names in the dialog; null where there is none.
QWidget* widgetOf(QDialog& dialog, QString const& name) {
  if (qobject_cast<QFileDialog*>(&dialog)) return name == QLatin1String("file") ? &dialog : nullptr;
  if (qobject_cast<QColorDialog*>(&dialog)) return name == QLatin1String("color") ? &dialog : nullptr;
  if (qobject_cast<QMessageBox*>(&dialog)) return name == QLatin1String("button") ? &dialog : nullptr;
  return dialog.findChild<QWidget*>(name);
}

bool apply(QDialog& dialog, QWidget& widget, QString const& value) {
  if (auto* const files = qobject_cast<QFileDialog*>(&dialog)) {
    QFileInfo const file(value);
    files->selectFile(file.absoluteFilePath());
    return files->fileMode() != QFileDialog::ExistingFile || file.isFile();
  }
  if (auto* const colors = qobject_cast<QColorDialog*>(&dialog)) {
    colors->setCurrentColor(QColor(value));
    return QColor::isValidColor(value);
  }
  if (auto const* const box = qobject_cast<QMessageBox*>(&dialog)) {
    QPushButton* const button = buttonOf(*box, value);
    if (button) button->click();
    return button != nullptr;
  }
  return widget.isEnabled() && setValue(widget, value);
}

// A dialog checks what it was given behind its OK button.
void accept(QDialog& dialog) {
  auto const* const box = qobject_cast<QMessageBox*>(&dialog);
  QPushButton* const button = box && box->defaultButton() ? box->defaultButton() : acceptingButtonOf(dialog);
  if (button)
    button->click();
  else
    QMetaObject::invokeMethod(&dialog, "accept");
}

bool onlyTells(QDialog const& dialog) {
  auto const* const box = qobject_cast<QMessageBox const*>(&dialog);
  return box && box->icon() == QMessageBox::Information && box->buttons().size() == 1;
}

QString listed(QStringList const& entries) {
  constexpr int maxEntries = 8;
  QStringList shown;
  for (QString const& entry : entries.mid(0, maxEntries)) shown << QLatin1Char('"') + plain(entry) + QLatin1Char('"');
  if (entries.size() > maxEntries) shown << QStringLiteral("…");
  return shown.join(QStringLiteral(", "));
}

template <class Range>
QString rangeOf(Range const& range, double from, double to) {
  bool const isWhole = !qobject_cast<QDoubleSpinBox const*>(&range) && !qobject_cast<QDoubleValidator const*>(&range);
  return (isWhole ? Texts::tr("a whole number from %1 to %2") : Texts::tr("a number from %1 to %2")).arg(from).arg(to);
}

// What `setValue` takes, where that can be told.
QString takenBy(QWidget const& widget) {
  if (auto const* const edit = qobject_cast<QLineEdit const*>(&widget)) {
    if (auto const* const whole = qobject_cast<QIntValidator const*>(edit->validator()))
      return rangeOf(*whole, whole->bottom(), whole->top());
    auto const* const number = qobject_cast<QDoubleValidator const*>(edit->validator());
    return number ? rangeOf(*number, number->bottom(), number->top()) : QString();
  }
  auto const* const button = qobject_cast<QAbstractButton const*>(&widget);
  auto const* const group = qobject_cast<QGroupBox const*>(&widget);
  if ((button && button->isCheckable()) || (group && group->isCheckable())) return Texts::tr("on or off");
  QStringList entries;
  if (auto const* const box = qobject_cast<QComboBox const*>(&widget))
    for (int i = 0; i < box->count(); ++i) entries << box->itemText(i);
  else if (auto const* const view = qobject_cast<QAbstractItemView const*>(&widget))
    for (int i = 0; view->model() && i < view->model()->rowCount(); ++i)
      entries << view->model()->index(i, 0).data().toString();
  else if (auto const* const tabs = qobject_cast<QTabWidget const*>(&widget))
    for (int i = 0; i < tabs->count(); ++i) entries << tabs->tabText(i);
  if (!entries.isEmpty()) return listed(entries);
  if (auto const* const box = qobject_cast<QSpinBox const*>(&widget))
    return rangeOf(*box, box->minimum(), box->maximum());
  if (auto const* const box = qobject_cast<QDoubleSpinBox const*>(&widget))
    return rangeOf(*box, box->minimum(), box->maximum());
  if (auto const* const slider = qobject_cast<QSlider const*>(&widget))
    return rangeOf(*slider, slider->minimum(), slider->maximum());
  return QString();
}

QString takenBy(QDialog const& dialog, QWidget const& widget) {
  if (qobject_cast<QColorDialog const*>(&dialog)) return QStringLiteral("#RRGGBB, #AARRGGBB");
  auto const* const box = qobject_cast<QMessageBox const*>(&dialog);
  if (!box) return takenBy(widget);
  QStringList texts;
  for (QAbstractButton const* button : box->buttons()) texts << button->text();
  return listed(texts);
}

// Why a value was not taken, and which would be.
QString refusal(QDialog const& dialog, QWidget const& widget, DialogAnswers::Answer const& answer) {
  if (qobject_cast<QFileDialog const*>(&dialog))
    return Texts::tr("there is no file \"%1\"; check the name and the folder").arg(answer.value);
  if (!widget.isEnabled())
    return Texts::tr("%1 does not take \"%2\": it is switched off in the dialog as it is now")
        .arg(answer.widget, answer.value);
  QString const problem = Texts::tr("%1 does not take \"%2\"").arg(answer.widget, answer.value);
  QString const taken = takenBy(dialog, widget);
  return taken.isEmpty() ? problem : Texts::tr("%1; it takes %2").arg(problem, taken);
}

// As the step is called.
QString nameOf(DialogAnswers::Answer const& answer) {
  if (answer.kind == DialogAnswers::Answer::Kind::Widget) return Texts::tr("the answer for %1").arg(answer.widget);
  return answer.kind == DialogAnswers::Answer::Kind::Accept ? QStringLiteral("accept") : QStringLiteral("cancel");
}

QString nameOf(QDialog const& dialog) {
  auto const* const box = qobject_cast<QMessageBox const*>(&dialog);
  QString const title = dialog.windowTitle();
  if (box) return Texts::tr("the message box \"%1\" (\"%2\")").arg(title, box->text().simplified());
  QString const kind =
      dialog.objectName().isEmpty() ? QString::fromLatin1(dialog.metaObject()->className()) : dialog.objectName();
  return Texts::tr("the dialog \"%1\" (%2)").arg(title, kind);
}

}  // namespace

DialogAnswers::DialogAnswers() { qApp->installEventFilter(this); }
DialogAnswers::~DialogAnswers() = default;

bool DialogAnswers::eventFilter(QObject* watched, QEvent* event) {
  auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
  if (dialog && dialog->isModal() && !qobject_cast<QProgressDialog*>(dialog))
    QTimer::singleShot(0, dialog, [this, dialog] {
      if (dialog->isVisible()) answer(*dialog);
    });
  return false;
}

// A value or a button may close the dialog, and with it destroy it.
void DialogAnswers::answer(QDialog& dialog) {
  QPointer<QDialog> const shown(&dialog);
  bool isAnswered = false, isToBeRejected = false;
  while (!answers_.empty() && problem_.isEmpty()) {
    Answer const next = answers_.front();
    QWidget* const widget = next.kind == Answer::Kind::Widget ? widgetOf(dialog, next.widget) : nullptr;
    if (next.kind == Answer::Kind::Widget && !widget) break;
    answers_.pop_front();
    isAnswered = true;
    isToBeRejected = next.kind == Answer::Kind::Cancel;
    if (next.kind != Answer::Kind::Widget) break;
    if (!apply(dialog, *widget, next.value)) return fail(dialog, refusal(dialog, *widget, next));
    if (!shown || !shown->isVisible()) return;
  }
  if (!problem_.isEmpty() || isToBeRejected) return dialog.reject();
  if (!isAnswered && onlyTells(dialog))
    Console::complain(static_cast<QMessageBox&>(dialog).text());
  else if (!isAnswered)
    return fail(dialog, Texts::tr("nobody answers it; put answer=WIDGET:VALUE, accept or cancel before the command") +
                            (answers_.empty() ? QString() : Texts::tr("; next is %1").arg(nameOf(answers_.front()))));
  accept(dialog);
  if (shown && shown->isVisible()) fail(dialog, Texts::tr("it can't be accepted like this"));
}

void DialogAnswers::fail(QDialog& dialog, QString const& why) {
  if (problem_.isEmpty()) problem_ = nameOf(dialog) + QStringLiteral(": ") + why;
  dialog.reject();
}

QString DialogAnswers::takeProblem() {
  QString problem = std::exchange(problem_, QString());
  if (problem.isEmpty() && !answers_.empty())
    problem = Texts::tr("no dialog has taken %1").arg(nameOf(answers_.front()));
  answers_.clear();
  return problem;
}
