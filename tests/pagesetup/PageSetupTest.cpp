#include "Dialogs.h"
#include "LayoutHook.h"
#include "pagesetup/PageSettingCommand.h"
#include "pagesetup/PageSettingsDlg.h"
#include "pagesetup/PageSizeTabPage.h"

#include <functional>

using namespace SysCarto;
using SysGeometry::Envelope;

namespace {

PageFormID formNamed(char const* key) {
  FormInfo info;
  for (PageFormID id = 0; Paper::GetFormInfo(id, info); ++id)
    if (info.key == QLatin1String(key)) return id;
  return -1;
}

_ptr_t<PageLayout> layoutOf(char const* form, short orientation) {
  auto const layout = emptyLayout(10.0, 20.0);
  layout->GetPage()->SetFormID(formNamed(form));
  layout->GetPage()->SetOrientation(orientation);
  return layout;
}

// A hand at the tab or at the dialog.
struct Hand {
  explicit Hand(QWidget& shown) : shown(shown) { shown.show(); }

  template <class Widget>
  Widget* find(char const* name) const {
    return shown.findChild<Widget*>(QLatin1String(name));
  }
  QString width() const { return find<QLineEdit>("lineEdit_PageWidth")->text(); }
  QString height() const { return find<QLineEdit>("lineEdit_PageHeight")->text(); }
  void choose(char const* form) const { find<QComboBox>("comboBox_PaperType")->setCurrentIndex(formNamed(form)); }
  void press(char const* button) const { QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton, {}, {8, 8}); }
  void type(char const* field, QString const& text) const {
    auto* const edit = find<QLineEdit>(field);
    edit->selectAll();
    QTest::keyClicks(edit, text);
  }

  QWidget& shown;
};

}  // namespace

class PageSetupTest : public QObject {
  Q_OBJECT

private slots:
  void theFieldsFollowFormAndOrientation_data() {
    Rows<QString, int, QStringList, QStringList, bool> row;
    QString const lie = "radioButton_H", stand = "radioButton_V";
    row("at first, a form", "A4", 1, {}, {"21", "29.7"}, false);
    row("at first, a size of its own that lies", "Custom", 2, {}, {"20", "10"}, true);
    row("landscape swaps", "A4", 1, {lie}, {"29.7", "21"}, false);
    row("and back", "A4", 1, {lie, stand}, {"21", "29.7"}, false);
    row("landscape again leaves that", "A4", 2, {"A3", lie}, {"29.7", "42"}, false);
    row("portrait swaps it", "A4", 2, {"A3", stand}, {"42", "29.7"}, false);
    row("the custom size starts from what is shown", "A4", 1, {"A5", "Custom"}, {"14.8", "21"}, true);
    row("a form that is listed wider than high", "Custom", 1, {"Ledger"}, {"43.18", "27.94"}, false);
  }

  void theFieldsFollowFormAndOrientation() {
    auto const [page, orientation, steps, size, editable] = fetched<QString, int, QStringList, QStringList, bool>();
    PageSizeTabPage tab(layoutOf(qPrintable(page), static_cast<short>(orientation)), nullptr);
    Hand const hand(tab);
    QSignalSpy const changes(&tab, &PageSizeTabPage::ValueChanged);
    for (QString const& step : steps)
      if (step.startsWith(QLatin1String("radio")))
        hand.press(qPrintable(step));
      else
        hand.choose(qPrintable(step));
    QCOMPARE((QStringList{hand.width(), hand.height()}), size);
    QCOMPARE(hand.find<QLineEdit>("lineEdit_PageWidth")->isEnabled(), editable);
    QCOMPARE(hand.find<QLineEdit>("lineEdit_PageHeight")->isEnabled(), editable);
    QCOMPARE(changes.count(), steps.size());
  }

  void orientationFollowsThePressAndTheArrowKeys() {
    PageSizeTabPage tab(layoutOf("A4", 1), nullptr);
    Hand const hand(tab);
    auto* const lie = hand.find<QRadioButton>("radioButton_H");
    QTest::mousePress(lie, Qt::LeftButton, {}, {8, 8});
    QCOMPARE(hand.width(), QString("29.7"));
    QTest::mouseRelease(lie, Qt::LeftButton, {}, {8, 8});
    QVERIFY(QTest::qWaitForWindowActive(&tab));
    lie->setFocus();
    QTest::keyClick(lie, Qt::Key_Left);
    QVERIFY(hand.find<QRadioButton>("radioButton_V")->isChecked());
    QCOMPARE(hand.width(), QString("21"));
  }

  void thePageTakesWhatTheTabShows_data() {
    Rows<QString, bool, QString, QString, QSizeF> row;
    row("a listed form", "A3", false, "", "", QSizeF(29.7, 42.0));
    row("a size of its own", "Custom", false, "12.5", "30.0", QSizeF(12.5, 30.0));
    row("one that lies is stored the portrait way", "Custom", true, "29.7", "21.0", QSizeF(29.7, 21.0));
    row("a size that is no number is 0", "Custom", false, ".", "21.0", QSizeF(0, 21.0));
  }

  void thePageTakesWhatTheTabShows() {
    auto const [form, landscape, width, height, size] = fetched<QString, bool, QString, QString, QSizeF>();
    auto const layout = layoutOf("A4", 1);
    PageSizeTabPage tab(layout, nullptr);
    Hand const hand(tab);
    if (landscape) hand.press("radioButton_H");
    hand.choose(qPrintable(form));
    if (!width.isEmpty()) {
      hand.type("lineEdit_PageWidth", width);
      hand.type("lineEdit_PageHeight", height);
    }
    QCOMPARE(sizeOf(*layout->GetPage()), QSizeF(21.0, 29.7));
    tab.ApplyToPage();
    QCOMPARE(sizeOf(*layout->GetPage()), size);
    QCOMPARE(layout->GetPage()->GetOrientation(), short(landscape ? 2 : 1));
    FormInfo custom;
    Paper::GetFormInfo(customPageForm, custom);
    if (landscape && form == QLatin1String("Custom")) QCOMPARE(QSizeF(custom.width, custom.height), QSizeF(21.0, 29.7));
  }

  void elementsFollowThePageWhereThatIsWanted_data() {
    Rows<bool, QString, bool> row;
    row("wanted", true, "40.0", true);
    row("not wanted", false, "40.0", false);
    row("never to a page without width", true, "0", false);
  }

  void elementsFollowThePageWhereThatIsWanted() {
    auto const [wanted, width, moved] = fetched<bool, QString, bool>();
    auto const layout = emptyLayout(20.0, 10.0);
    auto const hook = make<LayoutHook>(layout);
    auto const frame = madeIn<MapFrameElement>(2.0, 1.0, 12.0, 6.0);
    auto const picture = madeIn<RectangleElement>(4.0, 2.0, 6.0, 8.0);
    layout->GetGraphicsContainer()->AddElements({frame, picture});
    frame->SetLocked(true);

    PageSizeTabPage tab(layout, nullptr);
    Hand const hand(tab);
    auto* const option = hand.find<QCheckBox>("checkBox_ScaleMapElements");
    if (option->isChecked() != wanted) hand.press("checkBox_ScaleMapElements");
    hand.type("lineEdit_PageWidth", width);
    hand.type("lineEdit_PageHeight", "30.0");
    tab.ApplyToPage();

    QCOMPARE(placeOf(*frame), moved ? QRectF(4, 3, 20, 15) : QRectF(2, 1, 10, 5));
    // The centre (5, 5) goes to (10, 15); the size stays.
    QCOMPARE(placeOf(*picture), moved ? QRectF(9, 12, 2, 6) : QRectF(4, 2, 2, 6));
    QVERIFY(frame->IsLocked());
    QVERIFY2(PageSizeTabPage(layout, nullptr).findChild<QCheckBox*>()->isChecked() == wanted,
             "the next tab shows the option as it was left");
    QCOMPARE(hook->history.count(), 0);
  }

  void theDialogAppliesOnceAndShowsTheWholePage_data() {
    Rows<QStringList, bool, bool, int> row;
    row("nothing to apply", {"Apply"}, false, false, 0);
    row("OK without a change", {"OK"}, false, false, 1);
    row("OK with a change", {"OK"}, true, true, 2);
    row("Apply and OK", {"Apply", "OK"}, true, true, 2);
    row("Apply and Cancel", {"Apply", "Cancel"}, true, true, 1);
    row("Cancel", {"Cancel"}, true, false, 0);
  }

  void theDialogAppliesOnceAndShowsTheWholePage() {
    auto const [buttons, changes, applied, redraws] = fetched<QStringList, bool, bool, int>();
    auto const layout = layoutOf("A4", 1);
    layout->SetExtent(make<Envelope>(1.0, 1.0, 2.0, 2.0));
    auto const hook = make<LayoutHook>(layout);
    Person person;
    if (changes) person.sets("comboBox_PaperType", "A3");
    for (QString const& button : buttons) person.sets("pushButton_" + button, "click");
    hook->bound<Plugin::PageSettingCommand>()->OnClick();
    QCOMPARE(person.problem().contains("pushButton_Apply does not take"), !changes && buttons.first() == "Apply");
    QCOMPARE(layout->GetPage()->GetFormID(), formNamed(applied ? "A3" : "A4"));
    QCOMPARE(hook->calls.count("refresh 255"), redraws);
    QCOMPARE(layout->GetExtent()->Contains(layout->GetPage()->GetPageEnvelope()), redraws > 0);
  }

  void theFrameIsAppliedAsCopies() {
    auto const layout = layoutOf("A4", 1);
    Page& page = *layout->GetPage();
    page.SetBackGround(nullptr);
    auto const border = make<SymbolBorder>();
    page.SetBorder(border);
    PageSettingsDlg dialog(layout, nullptr);
    Hand const hand(dialog);
    hand.find<QTabWidget>("tabWidget")->setCurrentIndex(1);
    hand.find<QDoubleSpinBox>("spinBox_BorderGap")->setValue(5.0);
    QCOMPARE(border->GetGap(), 0.0);
    hand.press("pushButton_Apply");

    QVERIFY2(!page.GetBackground() && !page.GetShadow(), "what is not there stays so");
    auto const applied = ptr_cast<SymbolBorder>(page.GetBorder());
    QVERIFY(applied && applied != border);
    QCOMPARE(applied->GetGap(), 5.0);
    hand.find<QDoubleSpinBox>("spinBox_BorderGap")->setValue(7.0);
    QCOMPARE(applied->GetGap(), 5.0);

    hand.find<QGroupBox>("groupBox_Border")->setChecked(false);
    hand.press("pushButton_OK");
    QVERIFY(!page.GetBorder());
  }

  void tabLeadsThroughTheFieldsToTheButtons() {
    auto const layout = make<PageLayout>();
    layout->SetPage(make<SysCarto::Page>());
    PageSettingsDlg dialog(layout, nullptr);
    QStringList order;
    auto* const tabs = dialog.findChild<QTabWidget*>("tabWidget");
    for (QWidget* one = tabs->nextInFocusChain(); one != tabs; one = one->nextInFocusChain())
      order << one->objectName();
    QList<int> places;
    for (char const* name : {"comboBox_PaperType", "radioButton_H", "groupBox_Border", "pushButton_OK",
                             "pushButton_Cancel", "pushButton_Apply"})
      places << order.indexOf(name);
    QVERIFY(!places.contains(-1) && std::is_sorted(places.begin(), places.end()));
  }

  // A dialog would wait for an answer.
  void withoutAPageNoDialogOpens() {
    auto const hook = make<LayoutHook>(make<PageLayout>());
    auto const command = hook->bound<Plugin::PageSettingCommand>();
    QVERIFY(command->IsEnable());
    command->OnClick();
  }
};

QTEST_MAIN(PageSetupTest)
#include "PageSetupTest.moc"
