#include "Dialogs.h"
#include "desktop/WorldWindow.h"

#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/SysUtility/JsonFile.h"
#include "host/desktop/RunSteps.h"
#include "host/desktop/drawing/SelectionHandles.h"

namespace {

enum class Do { Command, Answer, Choose, Draw, Pull, Write, Set };

/// What a hand does, and the step of `plotvane run` that does the same; empty where both are written alike, "-" where a
/// later one does it.
struct Action {
  Do verb;
  QString what, value;
  QString step;
};

constexpr double handCm = 0.1;  // that a hand may miss by, a pixel at either end of a drag

// clang-format off
QVector<Action> const actions = {
    {Do::Set, "page/background/symbol/color", "#fbf8f0", {}},
    {Do::Set, "page/margins", "true", "set=page/margins:{}"},
    {Do::Set, "page/verticalGuides", "[1.6, 19.4]", {}},
    {Do::Set, "page/horizontalGuides", "[1.5, 3.9, 25.5, 26.25, 27.15]", {}},

    {Do::Command, "Plotvane_MapFrame", {}, {}},
    {Do::Draw, "10,15", {}, "select=#1"},
    {Do::Pull, "-1,-1", "1.65,3.93", "-"},
    {Do::Pull, "1,1", "19.37,25.46", "set=selection/rectangle:[1.6,3.9,19.4,25.5]"},
    {Do::Set, "selection/name", "Aegean", {}},
    {Do::Set, "selection/border/symbol/width", "1.2", {}},
    {Do::Set, "selection/background/symbol/color", "#d3e5ec", {}},
    {Do::Set, "selection/grids/-/interval", "1", {}},

    {Do::Choose, "Map1", {}, "-"},
    {Do::Set, "map:#0/name", "Aegean", {}},
    {Do::Set, "map:#0/coordinateSystem", "+proj=lcc +lat_1=36 +lat_2=41 +lat_0=38.4 +lon_0=24.6 +datum=WGS84 +units=m +no_defs", {}},
    {Do::Set, "map:#0/bounds/0", "-377896.4", "-"},
    {Do::Set, "map:#0/bounds/1", "-478552.2", "-"},
    {Do::Set, "map:#0/bounds/2", "755792.8", "-"},
    {Do::Set, "map:#0/bounds/3", "917141.8", "set=map:#0/bounds:[-377896.4,-478552.2,377896.4,438589.6]"},

    {Do::Command, "Host_InsertRectangle", {}, "-"},
    {Do::Draw, "1.04,28.73", "19.97,1.02", "add=rectangle@1,28.7,20,1"},
    {Do::Set, "selection/symbol/style", "\"null\"", {}},
    {Do::Command, "Plotvane_SendToBackElements", {}, {}},

    {Do::Command, "Host_InsertText", {}, "-"},
    {Do::Draw, "10.54,27.12", {}, "-"},
    {Do::Write, "THE AEGEAN", {}, "add=text:THE AEGEAN@10.5,27.15"},
    {Do::Set, "selection/symbol/family", "EB Garamond", {}},
    {Do::Set, "selection/symbol/size", "40", {}},
    {Do::Set, "selection/symbol/horizontal", "center", {}},
    {Do::Set, "selection/symbol/letterSpacing", "9", {}},
    {Do::Set, "selection/symbol/color", "#3b3a44", {}},
    {Do::Command, "Host_InsertText", {}, "-"},
    {Do::Draw, "10.46,26.28", {}, "-"},
    {Do::Write, "Towns of more than 15,000 people", {}, "add=text:Towns of more than 15,000 people@10.5,26.25"},
    {Do::Command, "Host_InsertText", {}, "-"},
    {Do::Draw, "10.52,1.53", {}, "-"},
    {Do::Write, "[credits]", {}, "add=text:[credits]@10.5,1.5"},

    {Do::Command, "Plotvane_Legend", {}, {}},
    {Do::Set, "selection/surround/labelSymbol/size", "7.5", {}},
    {Do::Pull, "0,0", "16,9", {}},
    {Do::Command, "Plotvane_ScaleBar", {}, {}},
    {Do::Pull, "0,0", "10.7,4.8", {}},
    {Do::Command, "Plotvane_ScaleText", {}, {}},
    {Do::Pull, "0,0", "10.9,2.6", {}},
    {Do::Answer, "grid", "Compass dial", "answer=grid:Compass dial"},
    {Do::Command, "Plotvane_NorthArrow", {}, {}},
    {Do::Set, "selection/surround/trueNorth", "true", {}},
    {Do::Pull, "0,0", "17.9,13", {}},
};
// clang-format on

QPointF pointIn(QString const& text) { return {text.section(',', 0, 0).toDouble(), text.section(',', 1).toDouble()}; }

// What follows an event in turns of its own.
void settle() {
  QCoreApplication::sendPostedEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

/// Mouse, keys and widgets of a window.
class Hand {
public:
  explicit Hand(MainWindow& window) : window_(window), page_(window.bench()) {}

  void perform(Action const& action) {
    settle();
    QPointF const at = pointIn(action.what), to = pointIn(action.value);
    switch (action.verb) {
      case Do::Command: return command(action.what);
      case Do::Answer: return person_.sets(action.what, action.value);
      case Do::Choose: return choose(action.what);
      case Do::Draw: return drag(at, action.value.isEmpty() ? at : to, Qt::NoModifier);
      case Do::Pull: return drag(grip(at), to, at.isNull() ? Qt::AltModifier : Qt::NoModifier);
      case Do::Write: return write(action.what);
      case Do::Set: return set(action.what.section('/', 1).split('/'), action.value);
    }
  }

  /// The step that does the same, as it is before the hand does it.
  QString step(Action const& action) {
    if (!action.step.isEmpty()) return action.step;
    if (action.verb == Do::Command) return action.what;
    if (action.verb == Do::Set) return QString("set=%1:%2").arg(action.what, action.value);
    return QString("drag=%1,%2,%3").arg(grip({}).x()).arg(grip({}).y()).arg(action.value);
  }

  void command(QString const& identifier) {
    QAction* const action = window_.actions().find(identifier);
    QVERIFY2(action->isEnabled(), qPrintable(identifier));
    action->trigger();
    window_.activateWindow();  // after a dialog
    QVERIFY(QTest::qWaitForWindowActive(&window_));
  }

private:
  // A handle of the selection, or its middle.
  QPointF grip(QPointF const& handle) {
    QRectF const box = SelectionHandles(*page_.layout()).boundsCm();
    return box.center() + QPointF(handle.x() * box.width() / 2, handle.y() * box.height() / 2);
  }

  void drag(QPointF const& from, QPointF const& to, Qt::KeyboardModifiers keys) {
    page_.view().setFocus();
    page_.drag(page_.pixel(from.x(), from.y()), page_.pixel(to.x(), to.y()), keys);
  }

  void write(QString const& text) {
    QWidget* const field = window_.focusWidget();
    QCOMPARE(field->objectName(), QString("plainTextEdit_TextOnPage"));
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier);
  }

  void choose(QString const& map) {
    auto* const tree = window_.findChild<QTreeView*>("treeView_Contents");
    auto const& rows = *tree->model();
    QModelIndex const row = rows.match(rows.index(0, 0), Qt::DisplayRole, map, 1, Qt::MatchExactly).value(0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(row).center());
  }

  // What is not there yet is switched on or added on the way to the field.
  void set(QStringList path, QString value) {
    value.remove('[').remove(']').remove('"');
    for (int i = 0; i + 1 < path.size(); ++i) {
      QStringList const outer = path.mid(0, i + 1);
      bool const isNew = path[i + 1] == "-";
      if (isNew) path[i + 1] = QString::number(model().rowCount(index(outer).siblingAtColumn(0)));
      if (!isNew && index(outer).data(Qt::CheckStateRole) != QVariant(Qt::Unchecked)) continue;
      show(outer);
      isNew ? sheet().findChild<QToolButton*>("toolButton_Add")->click()
            : QTest::keyClick(&sheet().view(), Qt::Key_Space);
      settle();
    }
    show(path);
    auto& view = sheet().view();
    bool const isChoice = model().row(index(path)).field->info.kind == SysUtility::FieldInfo::Kind::Choice;
    if (value == "true")
      QTest::keyClick(&view, Qt::Key_Space);
    else
      isChoice ? choose(view, value) : type(view, value);
    settle();
    QCOMPARE(index(path).data(SysAdapterUI::PropertyModel::ProblemRole).toString(), QString());
  }

  // The first letter begins the value, though it may be a tool's key.
  static void type(QTreeView& view, QString const& value) {
    QTest::keyClicks(&view, value.left(1));
    QWidget* const editor = view.indexWidget(view.currentIndex());
    QVERIFY(editor);
    QTest::keyClicks(editor, value.mid(1));
    QWidget* const fonts = QApplication::activePopupWidget();
    if (fonts) QTest::keyClick(fonts, Qt::Key_Down);
    QTest::keyClick(fonts ? fonts : editor, Qt::Key_Return);
  }

  static void choose(QTreeView& view, QString const& value) {
    QTest::keyClick(&view, Qt::Key_F2);
    settle();  // it opens by itself
    auto* const box = qobject_cast<QComboBox*>(view.indexWidget(view.currentIndex()));
    QVERIFY(box);
    QTest::keyClick(box->view(), Qt::Key_Home);
    for (int i = box->findData(value); i > 0; --i) QTest::keyClick(box->view(), Qt::Key_Down);
    QTest::keyClick(box->view(), Qt::Key_Return);
  }

  void show(QStringList const& path) {
    auto& view = sheet().view();
    QModelIndex const shown = static_cast<QSortFilterProxyModel*>(view.model())->mapFromSource(index(path));
    QVERIFY2(shown.isValid(), qPrintable(path.join('/')));
    view.setFocus();
    view.setCurrentIndex(shown);
  }

  // A part of a rectangle is counted.
  QModelIndex index(QStringList const& path) {
    QModelIndex const own = model().indexOf(path);
    if (own.isValid() || path.size() < 2) return own;
    return model().index(path.last().toInt(), 1, model().indexOf(path.mid(0, path.size() - 1)).siblingAtColumn(0));
  }

  SysAdapterUI::PropertySheet& sheet() { return *window_.findChild<SysAdapterUI::PropertySheet*>(); }
  SysAdapterUI::PropertyModel& model() { return sheet().model(); }

  MainWindow& window_;
  WorkbenchPage page_;
  Person person_;
};

// By their paths; handles may differ.
std::map<QString, QJsonValue> valuesIn(QJsonValue const& value, QString const& path = {}) {
  QVariantMap parts = value.toObject().toVariantMap();
  for (int i = 0; i < value.toArray().size(); ++i) parts[QString::number(i)] = value.toArray()[i].toVariant();
  parts.remove("handle");
  if (parts.isEmpty()) return {{path, value}};
  std::map<QString, QJsonValue> values;
  for (auto it = parts.begin(); it != parts.end(); ++it)
    values.merge(valuesIn(QJsonValue::fromVariant(*it), path + '/' + it.key()));
  return values;
}

}  // namespace

/// A whole page that is made by hand in the window, from the first click to the last.
class WholePageTest : public QObject {
  Q_OBJECT

private slots:
  void aHandMakesWhatTheStepsMake() {
    QTemporaryDir const folder;
    prepareWorld(folder.path());
    QString const empty = folder.filePath("empty.kdx"), byHand = folder.filePath("hand.kdx"),
                  byStep = folder.filePath("steps.kdx");
    QStringList steps;
    {
      MainWindow window;
      window.resize(1280, 860);
      window.show();
      QVERIFY(QTest::qWaitForWindowActive(&window));
      Hand hand(window);
      auto const saveAs = [&](QString const& path) {
        Person person;
        person.sets("file", path);
        hand.command("Host_SaveAs");
      };
      auto const repeat = [&](char const* command) {
        while (window.actions().find(command)->isEnabled()) hand.command(command);
        return QString::fromUtf8(SysCarto::MapDocumentHost::text(window.bench().session().document()));
      };
      saveAs(empty);
      for (Action const& action : actions) {
        steps << hand.step(action);
        hand.perform(action);
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(action.what));
      }
      saveAs(byHand);
      QCOMPARE(repeat("Host_Undo"), QString::fromUtf8(contentOf(empty)));
      QCOMPARE(repeat("Host_Redo"), QString::fromUtf8(contentOf(byHand)));
    }
    steps.removeAll("-");
    RunSteps run(false);
    QCOMPARE(run.open(empty), QString());
    QCOMPARE(run.check(steps), QString());
    for (QString const& step : steps + QStringList("save=" + byStep)) QCOMPARE(run.run(step), QString());
    auto const stored = [](QString const& path) { return QJsonDocument::fromJson(contentOf(path)).object(); };
    auto const hand = valuesIn(stored(byHand)), expected = valuesIn(stored(byStep));
    QCOMPARE(hand.size(), expected.size());
    for (auto const& [path, value] : hand) {
      QJsonValue const other = expected.count(path) ? expected.at(path) : QJsonValue(QJsonValue::Undefined);
      double const slack = path.contains("/rectangle/") ? handCm : 1e-9 * std::abs(other.toDouble());
      bool const isNear = std::abs(value.toDouble() - other.toDouble()) <= slack;
      QVERIFY2(value.isDouble() && other.isDouble() ? isNear : value == other,
               qPrintable(path + ": " + SysUtility::jsonLine(value) + ", " + SysUtility::jsonLine(other)));
    }
  }
};

QTEST_MAIN(WholePageTest)
#include "tst_whole_page.moc"
