#pragma once

#include "Dialogs.h"
#include "WorldWindow.h"

#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/drawing/SelectionHandles.h"
#include "host/desktop/layers/AddLayersDialog.h"
#include "host/desktop/layers/ClassifyDialog.h"

#include <QJsonDocument>

#include <optional>

/// Lets what follows an event in turns of its own come about.
inline void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

/// Mouse, keys and widgets of a window, which tells of what it does by failing the test where it can't.
class Hand {
public:
  /// `folder` is where data are.
  Hand(MainWindow& window, QString folder) : window_(window), page_(window.bench()), folder_(std::move(folder)) {}

  void command(QString const& identifier) {
    settle();
    QAction* const action = window_.actions().find(identifier);
    QVERIFY2(action->isEnabled(), qPrintable(identifier));
    action->trigger();
    window_.activateWindow();  // after a dialog
    QVERIFY(QTest::qWaitForWindowActive(&window_));
  }

  void saveAs(QString const& path) {
    answer("file", path);
    command("Host_SaveAs");
  }

  /// In the next dialog that has this widget.
  void answer(QString const& widget, QString const& value) {
    if (!person_) person_.emplace();
    person_->sets(widget, value);
  }

  /// In centimetres of the page.
  void drag(QPointF const& from, QPointF const& to, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    settle();
    page_.view().setFocus();
    page_.drag(page_.pixel(from.x(), from.y()), page_.pixel(to.x(), to.y()), keys);
  }

  QPointF middleOfSelection() { return SelectionHandles(*page_.layout()).boundsCm().center(); }

  SysCarto::ElementHandle uppermost() { return page_.container().GetElements().last()->GetHandle(); }

  /// In the text on the page that is open.
  void write(QString const& text) {
    settle();
    QWidget* const field = window_.focusWidget();
    QCOMPARE(field->objectName(), QString("plainTextEdit_TextOnPage"));
    type(*field, text);
    QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier);
  }

  // Rows of the contents, by their names.

  void choose(QString const& name) {
    settle();
    QTest::mouseClick(contents().viewport(), Qt::LeftButton, {}, contents().visualRect(row(name)).center());
    settle();
  }

  void rename(QString const& name, QString const& now) {
    choose(name);
    command("Host_RenameLayer");
    QWidget* const editor = contents().indexWidget(contents().currentIndex());
    QVERIFY(editor);
    type(*editor, now);
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
  }

  void drop(QString const& name, QString const& onto) {
    choose(name);
    auto const [data, at] = std::pair(contents().model()->mimeData({row(name)}), contents().visualRect(row(onto)));
    std::unique_ptr<QMimeData> const owned(data);
    QDragEnterEvent enter(at.center(), Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move(at.center(), Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(at.center(), Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
    for (QEvent* const event : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&move), static_cast<QEvent*>(&drop)})
      QApplication::sendEvent(contents().viewport(), event);
    settle();
  }

  /// Of a file's layers those that are named, between commas.
  void addLayers(QString const& file, QString const& names) {
    inDialog<QFileDialog>([&](QFileDialog& dialog) {
      type(*dialog.findChild<QLineEdit*>("fileNameEdit"), folder_ + '/' + file);
      QTest::keyClick(dialog.findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    });
    inDialog<AddLayersDialog>([&](AddLayersDialog& dialog) {
      auto& rows = *dialog.findChild<QTreeWidget*>("treeWidget_Layers");
      QTRY_VERIFY(rows.topLevelItemCount() > 0);
      auto* const top = rows.topLevelItem(0);
      for (int i = 0; i < top->childCount(); ++i) {
        bool const isWanted = names.split(',').contains(top->child(i)->text(0));
        if (isWanted == (top->child(i)->checkState(0) == Qt::Checked)) continue;
        QModelIndex const name = rows.model()->index(i, 0, rows.model()->index(0, 0));
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(name).center());
        QTest::keyClick(&rows, Qt::Key_Space);
      }
      press(dialog, QDialogButtonBox::AcceptRole);
    });
    command("Host_AddLayer");
    settle();
  }

  /// By a field, into classes between those bounds.
  void classify(QString const& name, QString const& field, QStringList const& bounds) {
    choose(name);
    inDialog<ClassifyDialog>([&](ClassifyDialog& dialog) {
      pick(*dialog.findChild<QComboBox*>("comboBox_Field"), field);
      pick(*dialog.findChild<QComboBox*>("comboBox_Method"), "Quantiles");
      type(*dialog.findChild<QSpinBox*>("spinBox_Classes"), QString::number(bounds.size() + 1));
      auto& table = *dialog.findChild<QTableWidget*>("tableWidget_Classes");
      for (int i = bounds.size() - 1; i >= 0; --i) {  // each between those beside it
        table.setFocus();
        table.setCurrentCell(i, 2);
        QTest::keyClick(&table, Qt::Key_F2);
        QWidget* const editor = table.indexWidget(table.currentIndex());
        QVERIFY(editor);
        type(*editor, bounds[i]);
        QTest::keyClick(editor, Qt::Key_Return);
        settle();
        QCOMPARE(table.item(i, 2)->text().remove(QRegularExpression("[^0-9]")), bounds[i]);
      }
      press(dialog, QDialogButtonBox::AcceptRole);
    });
    command("Host_Classify");
    settle();
  }

  // The panel of properties.

  /// Gives what it shows the values of a document, field after field, but for those that are left out. What a document
  /// does not say has its default.
  void make(QJsonObject const& wanted, QStringList const& but) {
    constexpr int maxFields = 1000;
    QVERIFY2(!title().isEmpty(), "nothing is shown");
    settle();
    for (bool const isClearing : {true, false}) {
      for (int i = 0; i < maxFields && makeOne({}, wanted, but, isClearing); ++i) {
        settle();
        QCOMPARE(current().data(SysAdapterUI::PropertyModel::ProblemRole).toString(), QString());
        if (QTest::currentTestFailed()) return;
      }
      QVERIFY2(!makeOne({}, wanted, but, isClearing), "a field does not stay as it was made");
    }
  }

  /// Of the fields that it shows.
  QStringList keys() {
    QStringList keys;
    for (int i = 0; i < model().rowCount(); ++i) keys << model().row(model().index(i, 0)).path.first();
    return keys;
  }

private:
  using Kind = SysUtility::FieldInfo::Kind;
  using Part = SysAdapterUI::PropertyPart;

  template <class Dialog, class Use>
  void inDialog(Use const& use) {
    person_.reset();  // who would cancel it
    auto* const timer = new QTimer(&window_);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, use] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!dialog) return;
      timer->stop();
      timer->deleteLater();
      use(*dialog);
      if (dialog->isVisible() && QTest::currentTestFailed()) dialog->reject();
    });
    timer->start(1);
  }

  static void press(QDialog& dialog, QDialogButtonBox::ButtonRole role) {
    for (auto* const button : dialog.findChild<QDialogButtonBox*>()->buttons())
      if (dialog.findChild<QDialogButtonBox*>()->buttonRole(button) == role) {
        QTRY_VERIFY(button->isEnabled());
        return QTest::mouseClick(button, Qt::LeftButton);
      }
  }

  // In the place of what stands there.
  static void type(QWidget& field, QString const& text) {
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty()) QTest::keyClick(&field, Qt::Key_Delete);
    for (QChar const& character : text)
      if (character == '\n')
        QTest::keyClick(&field, Qt::Key_Return);
      else
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(character), Qt::NoModifier);
  }

  static void pick(QComboBox& box, QString const& text) {
    box.setFocus();
    box.showPopup();
    pickInList(box, box.findText(text));
  }

  static void pickInList(QComboBox& box, int number) {
    QVERIFY(number >= 0);
    QTest::keyClick(box.view(), Qt::Key_Home);
    for (int i = number; i > 0; --i) QTest::keyClick(box.view(), Qt::Key_Down);
    QTest::keyClick(box.view(), Qt::Key_Return);
  }

  QTreeView& contents() { return *window_.findChild<QTreeView*>("treeView_Contents"); }

  // A map, or a layer of the map with the focus.
  QModelIndex row(QString const& name) {
    auto const& rows = *contents().model();
    QModelIndex found = rows.match(rows.index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    for (int i = 0; i < rows.rowCount() && !found.isValid(); ++i) {
      QModelIndex const map = rows.index(i, 0);
      if (map.data(Qt::FontRole).value<QFont>().bold())
        found = rows.match(rows.index(0, 0, map), Qt::DisplayRole, name, 1, Qt::MatchExactly).value(0);
    }
    if (!found.isValid()) qWarning("there is no row %s", qPrintable(name));
    return found;
  }

  SysAdapterUI::PropertySheet& sheet() {
    return *window_.findChild<QDockWidget*>("dockWidget_Properties")->findChild<SysAdapterUI::PropertySheet*>();
  }
  SysAdapterUI::PropertyModel& model() { return sheet().model(); }
  QString title() { return sheet().findChild<QLabel*>("label_Title")->text(); }
  QModelIndex current() { return sheet().view().currentIndex(); }

  // The first field that is otherwise. Answers whether there was one. Lists are cleared first of what is not to be in
  // them: a value is in one class alone.
  bool makeOne(QModelIndex const& parent, QJsonValue const& wanted, QStringList const& but, bool isClearing) {
    int const count = model().rowCount(parent);
    for (int number = 0; number < count; ++number) {
      int const i = wanted.isArray() ? count - 1 - number : number;  // bounds of classes rise
      QModelIndex const index = model().index(i, 0, parent);
      auto const row = model().row(index);
      QJsonValue const value = wanted.isArray() ? wanted.toArray().at(i) : wanted.toObject().value(row.path.last());
      if (row.part != Part::Field || but.contains(row.path.join('/'))) continue;
      if (makeItself(index, row, value, isClearing)) return true;
      bool const isOn = row.field->info.kind == Kind::Object ? row.field->isPresent : row.isList();
      if (isOn && makeOne(index, value, but, isClearing)) return true;
    }
    return false;
  }

  bool makeItself(QModelIndex const& index, SysAdapterUI::PropertyModel::Row const& row, QJsonValue const& wanted,
                  bool isClearing) {
    auto const& rules = row.field->info.rules;
    if (row.field->info.kind == Kind::Object) {
      if (isClearing) return false;
      bool const isWanted = wanted.isObject() || rules.isRequired || row.isEntry;
      return isWanted != row.field->isPresent && pressIn(index, Qt::Key_Space);
    }
    if (row.isList()) {
      int const count = model().rowCount(index), toBe = wanted.toArray().size();
      if (count > toBe) return pressIn(model().index(count - 1, 0, index), Qt::Key_Delete);
      if (count == toBe) return false;
      show(index);
      QTest::mouseClick(sheet().findChild<QToolButton*>("toolButton_Add"), Qt::LeftButton);
      return true;
    }
    if (isClearing) return row.field->info.kind == Kind::Texts && clear(index, row.field->value, wanted);
    bool const isMissing = wanted.isUndefined() && row.field->info.kind != Kind::Texts;
    QJsonValue const value = isMissing ? rules.byDefault : wanted.isUndefined() ? QJsonValue(QJsonArray()) : wanted;
    if (value.isUndefined() || isSame(value, row.field->value)) return false;
    if (row.field->info.kind == Kind::Flag) return pressIn(index, Qt::Key_Space);
    return row.field->info.kind == Kind::Numbers ? setParts(index, value) : set(index, value);
  }

  bool clear(QModelIndex const& index, QJsonValue const& now, QJsonValue const& wanted) {
    QJsonArray kept;
    for (QJsonValue const& text : now.toArray())
      if (wanted.toArray().contains(text)) kept.append(text);
    return kept.size() < now.toArray().size() && set(index, kept);
  }

  static bool isSame(QJsonValue const& a, QJsonValue const& b) {
    if (a.isDouble() && b.isDouble()) return std::abs(a.toDouble() - b.toDouble()) <= 1e-12 * std::abs(b.toDouble());
    if (!a.isArray() || a.toArray().size() != b.toArray().size()) return a == b;
    for (int i = 0; i < a.toArray().size(); ++i)
      if (!isSame(a.toArray().at(i), b.toArray().at(i))) return false;
    return true;
  }

  // The numbers of a rectangle or a point, measured from its lower left corner.
  bool setParts(QModelIndex const& index, QJsonValue const& wanted) {
    for (int i = 0; i < model().rowCount(index); ++i) {
      QModelIndex const inner = model().index(i, 0, index);
      auto const row = model().row(inner);
      if (row.part == Part::Anchor) continue;
      auto const part = [&](QJsonValue const& of) {
        int const axis = row.part == Part::X || row.part == Part::Width ? 0 : 1;
        bool const isSize = row.part == Part::Width || row.part == Part::Height;
        return of[axis + (isSize ? 2 : 0)].toDouble() - (isSize ? of[axis].toDouble() : 0);
      };
      if (!isSame(part(wanted), part(row.field->value))) return set(inner, part(wanted));
    }
    return false;
  }

  bool pressIn(QModelIndex const& index, Qt::Key key) {
    show(index);
    QTest::keyClick(&sheet().view(), key);
    return true;
  }

  void show(QModelIndex const& index) {
    auto& view = sheet().view();
    view.setFocus();
    view.setCurrentIndex(static_cast<QSortFilterProxyModel*>(view.model())->mapFromSource(index.siblingAtColumn(1)));
  }

  bool set(QModelIndex const& index, QJsonValue const& value) {
    auto& view = sheet().view();
    show(index);
    QTest::keyClick(&view, Qt::Key_F2);
    settle();  // a list opens by itself
    QWidget* const editor = view.indexWidget(view.currentIndex());
    if (auto* const box = qobject_cast<QComboBox*>(editor)) {
      pickInList(*box, box->findData(value.toVariant()));
    } else if (editor) {
      bool const hasLines = qobject_cast<QPlainTextEdit*>(editor);
      type(*editor, textOf(value));
      if (QWidget* const suggestions = QApplication::activePopupWidget()) suggestions->close();
      QTest::keyClick(editor, Qt::Key_Return, hasLines ? Qt::ControlModifier : Qt::NoModifier);
    }
    return editor;
  }

  static QString textOf(QJsonValue const& value) {
    if (value.isDouble()) return QLocale::c().toString(value.toDouble(), 'g', QLocale::FloatingPointShortest);
    return value.isArray() ? value.toVariant().toStringList().join('\n') : value.toString();
  }

  MainWindow& window_;
  WorkbenchPage page_;
  QString const folder_;
  std::optional<Person> person_;
};
