#include "Dialogs.h"
#include "Test.h"

#include <SysAdapterUI/FramePropertyWidget.h>
#include <SysDisplay/SimpleFillSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>

#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QPushButton>

#include <functional>

using namespace SysCarto;
using SysAdapterUI::FramePropertyWidget;
using SysDisplay::SimpleFillStyle;
using SysDisplay::SimpleFillSymbol;
using SysDisplay::SimpleLineStyle;
using SysDisplay::SimpleLineSymbol;

namespace {

using Edit = std::function<void(FramePropertyWidget&)>;
using Check = std::function<bool(FramePropertyWidget const&)>;

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

Edit color(char const* button, QColor const& wanted) {
  return [=](FramePropertyWidget& widget) {
    answerDialog([=](QWidget& dialog) {
      dynamic_cast<QColorDialog&>(dialog).setCurrentColor(wanted);
      static_cast<QDialog&>(dialog).accept();
    });
    QTest::mouseClick(widget.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
  };
}

bool isFilled(_ptr_t<SymbolBackground> const& part) {
  return ptr_cast<SimpleFillSymbol>(part->GetFillSymbol())->GetStyle() != SimpleFillStyle::Null;
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
    Rows<Edit, Check> row;
    QColor const glass(10, 20, 30, 40);
    row("line style", noStyle("comboBox_BorderStyle"), [](auto const& widget) {
      return ptr_cast<SimpleLineSymbol>(widget.GetBorder()->GetLineSymbol())->GetStyle() == SimpleLineStyle::Null;
    });
    row("line color", color("colorButton_Border", glass),
        [=](auto const& widget) { return widget.GetBorder()->GetLineSymbol()->GetColor() == glass; });
    row("line width", number("spinBox_BorderWidth", 3.25),
        [](auto const& widget) { return widget.GetBorder()->GetLineSymbol()->GetWidth() == 3.25; });
    row("border gap", number("spinBox_BorderGap", -4),
        [](auto const& widget) { return widget.GetBorder()->GetGap() == -4; });
    row("border rounding", number("spinBox_BorderRounding", 30),
        [](auto const& widget) { return widget.GetBorder()->GetCornerRounding() == 30; });
    row("background fill", noStyle("comboBox_BackgroundStyle"),
        [](auto const& widget) { return !isFilled(widget.GetBackground()); });
    row("background color", color("colorButton_Background", glass),
        [=](auto const& widget) { return widget.GetBackground()->GetFillSymbol()->GetColor() == glass; });
    row("background gap", number("spinBox_BackgroundGap", 6),
        [](auto const& widget) { return widget.GetBackground()->GetGap() == 6; });
    row("background rounding", number("spinBox_BackgroundRounding", 40),
        [](auto const& widget) { return widget.GetBackground()->GetCornerRounding() == 40; });
    row("shadow fill", noStyle("comboBox_ShadowStyle"), [](auto const& widget) {
      return ptr_cast<SimpleFillSymbol>(widget.GetShadow()->GetFillSymbol())->GetStyle() == SimpleFillStyle::Null;
    });
    row("shadow color", color("colorButton_Shadow", glass),
        [=](auto const& widget) { return widget.GetShadow()->GetFillSymbol()->GetColor() == glass; });
    row("shadow to the right, its height kept", number("spinBox_ShadowX", 8), [](auto const& widget) {
      return widget.GetShadow()->GetXOffset() == 8 && widget.GetShadow()->GetYOffset() == -2;
    });
    row("shadow upwards, its side kept", number("spinBox_ShadowY", 9), [](auto const& widget) {
      return widget.GetShadow()->GetXOffset() == 2 && widget.GetShadow()->GetYOffset() == 9;
    });
    row("shadow rounding", number("spinBox_ShadowRounding", 50),
        [](auto const& widget) { return widget.GetShadow()->GetCornerRounding() == 50; });
  }

  void everyFieldReachesItsPart() {
    auto const [edit, check] = fetched<Edit, Check>();
    auto const border = make<SymbolBorder>();
    auto const background = make<SymbolBackground>();
    auto const shadow = make<SymbolShadow>();
    FramePropertyWidget widget(border, background, shadow, nullptr);
    FramePropertyWidget const untouched(border, background, shadow, nullptr);
    widget.show();
    QSignalSpy const changes(&widget, &FramePropertyWidget::ValueChanged);
    QVERIFY(!check(widget));
    edit(widget);
    QVERIFY(check(widget));
    QCOMPARE(changes.count(), 1);
    QVERIFY2(!check(untouched), "the widget works on copies");
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
    QVERIFY2(!isFilled(widget.GetBackground()), "a part without a symbol still draws nothing");
  }

  void thePreviewFollows() {
    auto const background = make<SymbolBackground>();
    background->GetFillSymbol()->SetColor(Qt::red);
    FramePropertyWidget widget(nullptr, background, make<SymbolShadow>(), nullptr);
    widget.show();
    QCOMPARE(pixelAtCentre(widget), QColor(Qt::red));
    color("colorButton_Background", Qt::blue)(widget);
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
