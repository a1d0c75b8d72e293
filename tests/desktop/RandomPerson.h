#pragma once

#include "Test.h"
#include "Widgets.h"

#include <random>

/// Numbers that are the same on every machine, other than those of the standard's distributions.
class Dice {
public:
  explicit Dice(quint32 seed) : random_(seed) {}

  quint32 number() { return static_cast<quint32>(random_()); }
  int upTo(int most) { return static_cast<int>(number() % static_cast<quint32>(most + 1)); }
  bool oneIn(int count) { return upTo(count - 1) == 0; }
  double between(double from, double to) { return from + (to - from) * (number() / 4294967296.0); }

  template <class List>
  auto const& of(List const& list) {
    return list[upTo(static_cast<int>(list.size()) - 1)];
  }

private:
  std::mt19937 random_;
};

/// Does something with every dialog and menu that opens, and closes it. What files it names lie in a folder.
class RandomPerson final : public QObject {
public:
  RandomPerson(Dice& dice, QString folder) : dice_(dice), folder_(std::move(folder)) { qApp->installEventFilter(this); }

  /// What was done, for who wants to do it again by hand.
  QStringList const& said() const { return said_; }

  /// The identifiers of the commands that were chosen in menus, and the names of other things there.
  QStringList const& chosen() const { return chosen_; }

  QString text() {
    static QStringList const texts{"",          "x",        "A longer text, with commas",
                                   "7",         "-3.5",     "1e9",
                                   "#80ff0000", "Ä ß",      "[title]",
                                   "EPSG:3857", "\"name\"", "0",
                                   "100",       "1:25000"};
    return dice_.of(texts);
  }

  /// Does something in a dialog that stands open beside the window, if one does.
  void touchOpen() {
    for (QWidget* const widget : QApplication::topLevelWidgets())
      if (auto* const dialog = qobject_cast<QDialog*>(widget); dialog && dialog->isVisible()) {
        said_ << QString("in “%1”").arg(dialog->windowTitle());
        for (int i = dice_.upTo(3); i >= 0; --i) touch(*dialog);
        return;
      }
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Show) return false;
    if (auto* const menu = qobject_cast<QMenu*>(watched)) {
      QTimer::singleShot(0, menu, [this, menu] { use(*menu); });
    } else if (auto* const dialog = qobject_cast<QDialog*>(watched)) {
      bool const asks = dialog->isModal() && !qobject_cast<QProgressDialog*>(dialog);
      if (asks) QTimer::singleShot(0, dialog, [this, dialog] { use(*dialog); });
    }
    return false;
  }

private:
  static constexpr int maxDialogs = 40, maxTouches = 6;

  void use(QMenu& menu) {
    QList<QAction*> actions;
    for (QAction* const action : menu.actions())
      if (action->isEnabled() && !action->isSeparator() && !action->menu()) actions << action;
    QPointer<QMenu> const shown(&menu);
    if (!actions.isEmpty() && dice_.upTo(2) > 0 && ++dialogs_ <= maxDialogs) {
      QAction* const chosen = dice_.of(actions);
      said_ << "menu: " + chosen->text();
      chosen_ << chosen->objectName();
      chosen->trigger();
    }
    if (shown) shown->close();
  }

  void use(QDialog& dialog) {
    if (!dialog.isVisible()) return;
    QPointer<QDialog> const shown(&dialog);
    bool const isTired = ++dialogs_ > maxDialogs;
    said_ << QString("%1 “%2”").arg(dialog.metaObject()->className(), dialog.windowTitle());
    if (auto* const box = qobject_cast<QMessageBox*>(&dialog); box && !isTired && !box->buttons().isEmpty()) {
      said_ << box->text().left(90).simplified();
      press(*dice_.of(box->buttons()));
    } else if (auto* const files = qobject_cast<QFileDialog*>(&dialog); files && !isTired) {
      choose(*files);
    } else if (!isTired) {
      for (int i = dice_.upTo(maxTouches); i > 0 && shown && shown->isVisible(); --i) touch(dialog);
    }
    if (!shown || !shown->isVisible()) return;
    if (isTired || dice_.oneIn(3)) return dialog.reject();
    makeCheap(dialog);
    QPushButton* accepting = nullptr;
    for (QPushButton* const button : dialog.findChildren<QPushButton*>())
      if (button->isDefault()) accepting = button;
    said_ << "accepted";
    if (accepting)
      accepting->click();
    else
      QMetaObject::invokeMethod(&dialog, "accept");
    if (shown && shown->isVisible()) dialog.reject();
  }

  void press(QAbstractButton& button) {
    said_ << "“" + button.text() + "”";
    button.click();
  }

  void choose(QFileDialog& dialog) {
    bool const isToBeRead = dialog.acceptMode() == QFileDialog::AcceptOpen;
    QStringList const here{"data/sphere.geojson", "data/aegean.gpkg", "world.kdx", "aegean.kdx", "picture.png"};
    QString const file = isToBeRead ? dice_.of(here) : QString("out%1").arg(dice_.upTo(3));
    said_ << file;
    dialog.selectFile(folder_ + '/' + file);
    QMetaObject::invokeMethod(&dialog, "accept");
  }

  // Large pictures are other tests' business; here they would only take time.
  static void makeCheap(QDialog& dialog) {
    for (auto* const edit : dialog.findChildren<QLineEdit*>(QRegularExpression("(?i)dpi|resolution")))
      edit->setText("20");
    for (auto* const box : dialog.findChildren<QSpinBox*>(QRegularExpression("(?i)dpi|resolution"))) box->setValue(20);
    for (auto* const edit : dialog.findChildren<QLineEdit*>(QRegularExpression("(?i)lineEdit_(file|output)")))
      if (!edit->text().isEmpty()) edit->setText(QDir::current().filePath("out-" + QFileInfo(edit->text()).fileName()));
  }

  // Something of the dialog that a hand can reach.
  void touch(QDialog& dialog) {
    QList<QWidget*> widgets;
    for (QWidget* const widget : dialog.findChildren<QWidget*>()) {
      bool const isButtonOfBox = qobject_cast<QDialogButtonBox*>(widget->parentWidget());
      if (widget->isVisible() && widget->isEnabled() && widget->window() == &dialog && !isButtonOfBox)
        widgets << widget;
    }
    for (int i = 0; i < 20 && !widgets.isEmpty(); ++i)
      if (touch(*dice_.of(widgets))) return;
  }

  bool touch(QWidget& widget) {
    QString const name = widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName();
    auto const did = [&](QString const& what) {
      said_ << name + ": " + what;
      return true;
    };
    if (auto* const button = qobject_cast<QAbstractButton*>(&widget)) {
      did("click");
      button->click();
      return true;
    }
    if (auto* const box = qobject_cast<QSpinBox*>(&widget)) {
      box->setValue(dice_.oneIn(3) ? dice_.oneIn(2) ? box->minimum() : qMin(box->maximum(), 50) : dice_.upTo(20));
      return did(box->text());
    }
    if (auto* const box = qobject_cast<QDoubleSpinBox*>(&widget)) {
      box->setValue(dice_.oneIn(3) ? box->minimum() : dice_.between(box->minimum(), qMin(box->maximum(), 1000.0)));
      return did(box->text());
    }
    if (auto* const box = qobject_cast<QComboBox*>(&widget)) {
      if (box->count() == 0) return false;
      int const row = dice_.upTo(box->count() - 1);
      did(box->itemText(row));
      box->setCurrentIndex(row);
      QMetaObject::invokeMethod(box, "activated", Q_ARG(int, row));
      return true;
    }
    if (auto* const slider = qobject_cast<QAbstractSlider*>(&widget)) {
      slider->setValue(slider->minimum() + dice_.upTo(slider->maximum() - slider->minimum()));
      return did(QString::number(slider->value()));
    }
    if (auto* const edit = qobject_cast<QLineEdit*>(&widget)) {
      if (edit->isReadOnly() || qobject_cast<QAbstractSpinBox*>(edit->parentWidget())) return false;
      QString const typed = text();
      did(typed);
      edit->selectAll();
      edit->insert(typed);
      QMetaObject::invokeMethod(edit, "editingFinished");
      return true;
    }
    if (auto* const edit = qobject_cast<QPlainTextEdit*>(&widget)) {
      edit->setPlainText(text());
      return did(edit->toPlainText());
    }
    if (auto* const tabs = qobject_cast<QTabBar*>(&widget)) {
      tabs->setCurrentIndex(dice_.upTo(tabs->count() - 1));
      return did("tab");
    }
    if (auto* const group = qobject_cast<QGroupBox*>(&widget); group && group->isCheckable()) {
      group->setChecked(!group->isChecked());
      return did("check");
    }
    auto* const view = qobject_cast<QAbstractItemView*>(&widget);
    return view && view->model() && touch(*view) && did("a row");
  }

  bool touch(QAbstractItemView& view) {
    QModelIndex index = view.rootIndex();
    for (int depth = dice_.upTo(2); depth >= 0 && view.model()->rowCount(index) > 0; --depth)
      index = view.model()->index(dice_.upTo(view.model()->rowCount(index) - 1),
                                  dice_.upTo(view.model()->columnCount(index) - 1), index);
    if (!index.isValid()) return false;
    view.setCurrentIndex(index);
    if (dice_.oneIn(2) && (index.flags() & Qt::ItemIsUserCheckable) && (index.flags() & Qt::ItemIsEnabled))
      view.model()->setData(index, index.data(Qt::CheckStateRole).toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked,
                            Qt::CheckStateRole);
    else if (dice_.oneIn(3) && (index.flags() & Qt::ItemIsEditable))
      view.model()->setData(index, text(), Qt::EditRole);
    return true;
  }

  Dice& dice_;
  QString const folder_;
  QStringList said_, chosen_;
  int dialogs_ = 0;
};
