#include "Test.h"
#include "Widgets.h"

#include "host/SysCarto/maps/VectorLayer.h"
#include "host/SysDisplay/SymbolFields.h"
#include "host/SysDisplay/SymbolVariation.h"
#include "host/desktop/DocumentSession.h"
#include "host/desktop/layers/BreakHistogram.h"
#include "host/desktop/layers/ClassifyDialog.h"
#include "host/desktop/layers/LayerClasses.h"

#include <cmath>

using namespace SysCarto;

class LayerClassesTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QVERIFY(session_.open(QStringLiteral(PLOTVANE_SOURCE_DIR "/samples/world.kdx"))); }

  void classesAreMadeOfAField_data() {
    Rows<QString, QString, QString, QString> row;
    row("numbers in the colours of a ramp", "Capitals", "population", "quantile,classes=3,ramp=Blues",
        "0 – 118,500|118,500 – 1,040,000|1,040,000 – 13,500,000 #deebf7 #9ecae1 #3182bd");
    row("a ramp the other way round", "Capitals", "population", "equal,classes=2,ramp=RdBu,reversed",
        "0 – 6,500,000|6,500,000 – 13,200,000 #67a9cf #ef8a62");
    row("breaks of one's own", "Capitals", "population", "own,breaks=100000;5000000,ramp=Greens",
        "0 – 100,000|100,000 – 5,000,000|5,000,000 – 13,200,000 #e5f5e0 #a1d99b #31a354");
    row("breaks beyond the values, and small ones", "Capitals", "population", "own,breaks=-1;1e-7;20000000,ramp=Greens",
        "-400,000 – -1|-1 – 0.0000001|0.0000001 – 20,000,000|20,000,000 – 20,400,000 #edf8e9 #bae4b3 #74c476 #238b45");
    row("the most frequent values", "Cities of over a million", "country", "unique,classes=2,ramp=Dark2",
        "CN|IN #1b9e77 #d95f02");
    row("values in order", "Cities of over a million", "country", "unique,sorted,classes=2,ramp=Set1",
        "CN|IN #e41a1c #377eb8");
    row("an area keeps its outline", "Countries", "name", "unique,sorted,classes=1", "Afghanistan #8dd3c7");
  }
  void classesAreMadeOfAField() {
    auto const [name, field, how, expected] = fetched<QString, QString, QString, QString>();
    auto const thing = layer(name);
    QString const outline = outlineOf(*thing);
    ClassifySettings wanted;
    wanted.field = field;
    QCOMPARE(LayerClasses::read(how, wanted), QString());
    QStringList warnings;
    QCOMPARE(LayerClasses::make(session_.document(), thing, wanted, warnings), QString());
    QCOMPARE(classesOf(*thing), expected);
    QCOMPARE(outlineOf(*thing), outline);
    session_.document().GetOperationStack()->Undo();
    QVERIFY(!session_.isModified());
  }

  void sizesGoFromOneToTheOther() {
    auto const thing = layer("Capitals");
    ClassifySettings wanted;
    wanted.field = "population";
    QCOMPARE(LayerClasses::read("pretty,classes=3,sizes=4-12", wanted), QString());
    QStringList warnings;
    QCOMPARE(LayerClasses::make(session_.document(), thing, wanted, warnings), QString());
    QVector<double> sizes;
    for (auto const& one : rendererOf(*thing).classes) sizes << SysDisplay::sizeOf(*one.symbol);
    QCOMPARE(sizes, (QVector<double>{4, 8, 12}));
    session_.document().GetOperationStack()->Undo();

    QCOMPARE(LayerClasses::read("proportional,sizes=2-30", wanted), QString());
    QCOMPARE(LayerClasses::make(session_.document(), thing, wanted, warnings), QString());
    QCOMPARE(rendererOf(*thing).proportional.smallestPt, 2.0);
    QCOMPARE(SysDisplay::sizeOf(*rendererOf(*thing).classes[0].symbol), 30.0);
    session_.document().GetOperationStack()->Undo();
  }

  void whatCanNotBeMadeIsTold_data() {
    Rows<QString, QString, QString, QString> row;
    row("a field of texts", "Capitals", "name", "natural", "holds no numbers");
    row("a field that is not there", "Capitals", "people", "natural", "name, country, population, capital");
    row("an unknown method", "Capitals", "population", "jenks", "equal, quantile, natural");
    row("an unknown option", "Capitals", "population", "natural,colours=5", "ramp=YlGnBu");
    row("an unknown ramp", "Capitals", "population", "natural,ramp=Blue", "Blues");
    row("no classes", "Capitals", "population", "natural,classes=0", "1 to 100");
    row("no number", "Capitals", "population", "natural,classes=many", "classes=7");
    row("sizes of areas", "Countries", "name", "unique,sizes=1-5", "Only markers and lines");
    row("breaks without numbers", "Capitals", "population", "own", "breaks=10;100");
    row("breaks that go down", "Capitals", "population", "own,breaks=10;5", "larger than the one before");
  }
  void whatCanNotBeMadeIsTold() {
    auto const [name, field, how, says] = fetched<QString, QString, QString, QString>();
    ClassifySettings wanted;
    wanted.field = field;
    QStringList warnings;
    QString problem = LayerClasses::read(how, wanted);
    if (problem.isEmpty()) problem = LayerClasses::make(session_.document(), layer(name), wanted, warnings);
    QVERIFY2(problem.contains(says), qPrintable(problem));
    QVERIFY(!session_.isModified());
  }

  // A person drags a bound, types another, writes a label, and takes sizes; then a class for each value.
  void theDialogShowsWhatItMakes() {
    ClassifyDialog dialog(ptr_cast<VectorLayer>(layer("Capitals")->layer()));
    dialog.show();
    auto const& made = dialog.renderer();
    auto* const method = dialog.findChild<QComboBox*>("comboBox_Method");
    auto* const table = dialog.findChild<QTableWidget*>("tableWidget_Classes");
    QCOMPARE(made.field, QString("population"));
    QCOMPARE(made.classes.size(), size_t(5));
    auto const counted = [&] {
      int all = 0;
      for (int row = 0; row < table->rowCount(); ++row) all += table->item(row, 4)->text().toInt();
      return all;
    };
    QCOMPARE(counted(), ptr_cast<VectorLayer>(layer("Capitals")->layer())->features().size());

    auto* const histogram = dialog.findChild<BreakHistogram*>();
    double const last = made.classes[4].minimum, before = made.classes[3].minimum;
    double const perPx = 13076300.0 / (histogram->width() - 12);
    auto const at = [&](double value) { return QPoint(qRound(6 + value / perPx), 20); };
    QTest::mousePress(histogram, Qt::LeftButton, {}, at(last));
    QMouseEvent move(QEvent::MouseMove, at(last) + QPoint(30, 0), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(histogram, &move);
    QTest::mouseRelease(histogram, Qt::LeftButton, {}, at(last) + QPoint(30, 0));
    QVERIFY(std::abs(made.classes[4].minimum - last - 30 * perPx) < 2 * perPx);
    QCOMPARE(made.classes[3].minimum, before);
    QCOMPARE(method->currentIndex(), 5);
    QCOMPARE(counted(), 241);

    table->item(0, 2)->setText("500000");
    QCOMPARE(made.classes[1].minimum, 500000.0);
    table->item(0, 2)->setText("many");
    table->item(1, 2)->setText("-5");
    QCOMPARE(made.classes[1].minimum, 500000.0);
    table->item(1, 3)->setText("towns");
    QCOMPARE(made.classes[1].label, QString("towns"));
    dialog.findChild<QComboBox*>("comboBox_Look")->setCurrentIndex(1);
    QCOMPARE(SysDisplay::sizeOf(*made.classes[4].symbol), 20.0);
    dialog.findChild<QSpinBox*>("spinBox_Classes")->setValue(3);
    QCOMPARE(made.classes.size(), size_t(3));
    dialog.findChild<QComboBox*>("comboBox_Field")->setCurrentText("country");
    QCOMPARE(made.kind, RendererSettings::Kind::UniqueValues);
    QVERIFY(!histogram->isVisible());
    QVERIFY(!session_.isModified());
  }

  void theDialogBeginsWithTheClassesThatThereAre_data() {
    Rows<QString, int> row;
    row("of one's own", "own,breaks=100000;5000000,ramp=Purples,reversed", 5);
    row("quantiles", "quantile,classes=4,ramp=Purples", 1);
    row("sizes in natural breaks", "natural,classes=4,sizes=2-8", 2);
  }
  void theDialogBeginsWithTheClassesThatThereAre() {
    auto const [how, method] = fetched<QString, int>();
    auto const thing = layer("Capitals");
    ClassifySettings wanted;
    wanted.field = "population";
    QCOMPARE(LayerClasses::read(how, wanted), QString());
    QStringList warnings;
    QCOMPARE(LayerClasses::make(session_.document(), thing, wanted, warnings), QString());
    QString const before = classesOf(*thing);
    ClassifyDialog const dialog(ptr_cast<VectorLayer>(thing->layer()));
    QCOMPARE(dialog.findChild<QComboBox*>("comboBox_Method")->currentIndex(), method);
    QCOMPARE(LayerClasses::give(session_.document(), thing, dialog.renderer(), warnings), QString());
    QCOMPARE(classesOf(*thing), before);
    session_.document().GetOperationStack()->Undo();
    QVERIFY(!session_.isModified());
  }

private:
  Editable::Pointer layer(QString const& name) {
    return Editable::named(session_.document(), "layer:World/" + name).value(0);
  }
  static RendererSettings rendererOf(Editable const& thing) {
    return ptr_cast<VectorLayer>(thing.layer())->renderer().settings();
  }
  static QString classesOf(Editable const& thing) {
    QStringList labels, colors;
    for (auto const& one : rendererOf(thing).classes) {
      labels << one.label;
      colors << SysDisplay::colorOf(*one.symbol).name();
    }
    return labels.join('|') + ' ' + colors.join(' ');
  }
  static QString outlineOf(Editable const& thing) {
    auto const fill = ptr_cast<SysDisplay::FillSymbol>(rendererOf(thing).classes.front().symbol);
    return fill ? SysDisplay::exportSymbol(*fill->GetOutlineSymbol()) : QString();
  }

  DocumentSession session_;
};

QTEST_MAIN(LayerClassesTest)
#include "tst_layer_classes.moc"
