#include "Dialogs.h"

#include "host/SysCarto/document/FrameSettings.h"
#include "host/SysUtility/JsonFields.h"

#include <SysAdapterUI/FramePropertyWidget.h>
#include <SysCarto/MapFrameElement.h>

#include <functional>

using namespace SysCarto;
using SysAdapterUI::FramePropertyWidget;

namespace {

using Edit = std::function<void(FramePropertyWidget&)>;

Edit number(char const* box, double value) {
  return [=](FramePropertyWidget& widget) { widget.findChild<QDoubleSpinBox*>(QLatin1String(box))->setValue(value); };
}

// Chooses the last style of the list, which is none.
Edit noStyle(char const* box) {
  return [=](FramePropertyWidget& widget) {
    auto* const list = widget.findChild<QComboBox*>(QLatin1String(box));
    QTest::keyClick(list, Qt::Key_End);
  };
}

Edit color(char const* button, QString const& wanted) {
  return [=](FramePropertyWidget& widget) {
    Person person;
    person.sets("color", wanted);
    QTest::mouseClick(widget.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
  };
}

// A field of the parts that the widget answers, as a document has it.
QJsonValue stored(FramePropertyWidget const& widget, QString const& field) {
  auto const frame = make<MapFrameElement>();
  frame->SetBorder(widget.GetBorder());
  frame->SetBackGround(widget.GetBackground());
  frame->SetShadow(widget.GetShadow());
  SysUtility::JsonWriter writer;
  FrameSettings::of(*frame).list(writer);
  QJsonValue value = writer.json();
  for (QString const& step : field.split('.')) value = value[step];
  return value;
}

QColor pixelAtCentre(FramePropertyWidget& widget) {
  QImage const picture = widget.findChild<QWidget*>("preview")->grab().toImage();
  return picture.pixelColor(picture.rect().center());
}

}  // namespace

class FramePropertyTest : public QObject {
  Q_OBJECT

private slots:
  void everyFieldReachesItsPart_data() {
    Rows<Edit, QString, QJsonValue> row;
    QString const glass = QStringLiteral("#280a141e");
    row("line style", noStyle("comboBox_BorderStyle"), "border.symbol.style", "null");
    row("line color", color("colorButton_Border", glass), "border.symbol.color", glass);
    row("line width", number("spinBox_BorderWidth", 3.25), "border.symbol.width", 3.25);
    row("border gap", number("spinBox_BorderGap", -4), "border.gap", -4);
    row("border rounding", number("spinBox_BorderRounding", 30), "border.rounding", 30);
    row("background fill", noStyle("comboBox_BackgroundStyle"), "background.symbol.style", "null");
    row("background color", color("colorButton_Background", glass), "background.symbol.color", glass);
    row("background gap", number("spinBox_BackgroundGap", 6), "background.gap", 6);
    row("background rounding", number("spinBox_BackgroundRounding", 40), "background.rounding", 40);
    row("shadow fill", noStyle("comboBox_ShadowStyle"), "shadow.symbol.style", "null");
    row("shadow color", color("colorButton_Shadow", glass), "shadow.symbol.color", glass);
    row("shadow to the right, its height kept", number("spinBox_ShadowX", 8), "shadow.offset", QJsonArray{8, -2});
    row("shadow upwards, its side kept", number("spinBox_ShadowY", 9), "shadow.offset", QJsonArray{2, 9});
    row("shadow rounding", number("spinBox_ShadowRounding", 50), "shadow.rounding", 50);
  }

  void everyFieldReachesItsPart() {
    auto const [edit, field, value] = fetched<Edit, QString, QJsonValue>();
    auto const border = make<SymbolBorder>();
    auto const background = make<SymbolBackground>();
    auto const shadow = make<SymbolShadow>();
    FramePropertyWidget widget(border, background, shadow, nullptr);
    FramePropertyWidget const untouched(border, background, shadow, nullptr);
    widget.show();
    QSignalSpy const changes(&widget, &FramePropertyWidget::ValueChanged);
    QVERIFY(stored(widget, field) != value);
    edit(widget);
    QCOMPARE(stored(widget, field), value);
    QCOMPARE(changes.count(), 1);
    QVERIFY2(stored(untouched, field) != value, "the widget works on copies");
  }

  void aPartThatIsNotThereCanBeAddedAndTakenAway() {
    FramePropertyWidget widget(nullptr, nullptr, nullptr, nullptr);
    widget.show();
    QSignalSpy const changes(&widget, &FramePropertyWidget::ValueChanged);
    QVERIFY(!widget.GetBorder() && !widget.GetBackground() && !widget.GetShadow());
    QVERIFY(!widget.findChild<QDoubleSpinBox*>("spinBox_BorderGap")->isEnabled());
    for (char const* name : {"groupBox_Border", "groupBox_Background", "groupBox_Shadow"})
      widget.findChild<QGroupBox*>(QLatin1String(name))->setChecked(true);
    QVERIFY(widget.GetBorder() && widget.GetBackground() && widget.GetShadow());
    widget.findChild<QGroupBox*>("groupBox_Shadow")->setChecked(false);
    QVERIFY(!widget.GetShadow());
    QCOMPARE(changes.count(), 4);
  }

  void whatIsNotOfferedIsKept() {
    auto const border = make<SymbolBorder>();
    border->GetLineSymbol()->SetOffset(1.5);
    border->SetCornerRounding(12.345);
    auto const bare = make<SymbolBackground>();
    bare->SetFillSymbol(nullptr);
    FramePropertyWidget const widget(border, bare, nullptr, nullptr);
    QCOMPARE(widget.GetBorder()->GetLineSymbol()->GetOffset(), 1.5);
    QCOMPARE(widget.GetBorder()->GetCornerRounding(), 12.345);
    QVERIFY2(stored(widget, "background.symbol.style") == "null", "a part without a symbol still draws nothing");
  }

  void thePreviewFollows() {
    auto const background = make<SymbolBackground>();
    background->GetFillSymbol()->SetColor(Qt::red);
    FramePropertyWidget widget(nullptr, background, make<SymbolShadow>(), nullptr);
    widget.show();
    QCOMPARE(pixelAtCentre(widget), QColor(Qt::red));
    color("colorButton_Background", "#0000ff")(widget);
    QCOMPARE(pixelAtCentre(widget), QColor(Qt::blue));
    widget.findChild<QGroupBox*>("groupBox_Background")->setChecked(false);
    QCOMPARE(pixelAtCentre(widget), QColor(128, 128, 128));  // the shadow under it
    // A part that reaches far beyond the rectangle is made to fit.
    number("spinBox_ShadowX", 1000)(widget);
    QImage const picture = widget.findChild<QWidget*>("preview")->grab().toImage();
    QCOMPARE(picture.pixelColor(picture.width() - 10, picture.height() / 2), QColor(128, 128, 128));
  }
};

QTEST_MAIN(FramePropertyTest)
#include "FramePropertyTest.moc"
