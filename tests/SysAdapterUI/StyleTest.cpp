#include "Files.h"
#include "Pictures.h"

#include "host/SysAdapterUI/OwnLibrary.h"
#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysAdapterUI/StyleItemModel.h"
#include "host/SysAdapterUI/SymbolChooser.h"
#include "host/SysAdapterUI/SymbolPreview.h"

#include <SysAdapterUI/StyleGalleryClass.h>
#include <SysDisplay/MarkerSymbol.h>
#include <SysDisplay/SimpleLineSymbol.h>
#include <SysUI/EnvironmentSetting.h>

using namespace SysAdapterUI;
using SysDisplay::MarkerSymbol;
using SysDisplay::Symbol;
using SysDisplay::SymbolType;

namespace {

QImage sampleOf(Symbol const& symbol) {
  QImage image = canvas({64, 64});
  QPainter painter(&image);
  drawSymbolPreview(painter, image.rect(), symbol, 2, true);
  return image;
}

}  // namespace

// The library that comes with the host, and the dialog that shows it.
class StyleTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    qputenv("PLOTVANE_SETTINGS", folder_.filePath("settings.ini").toUtf8());
    library_ = SysUI::EnvironmentSetting::Instance()->GetStyleDir() + QStringLiteral("/ORV.style");
    StyleGalleryClass gallery;
    QVERIFY2(gallery.GetAllItems(library_, items_), qPrintable(gallery.lastError()));
  }

  void init() { QFile::remove(folder_.filePath("settings.ini")); }

  void theLibraryHoldsEnoughOfEachClass() {
    for (auto const& [styleClass, fewest] : std::map<orvSymbologyStyleClass, int>{
             {NorthArrowStyle, 16}, {MarkerStyle, 30}, {LineStyle, 20}, {FillStyle, 20}, {TextStyle, 5}}) {
      StyleItemModel model(nullptr);
      model.load(styleClass, {library_});
      QVERIFY2(model.rowCount() >= fewest, qPrintable(QString::number(model.rowCount())));
      QCOMPARE(model.problems(), QStringList());
    }
  }

  void everyItemDrawsSomethingThatNoOtherOfItsCategoryDraws() {
    QSet<QString> names;
    QHash<QString, QList<QImage>> seen;
    for (auto const& item : items_) {
      QString const name = item->GetCategory().section('/', 0, 0) + '/' + item->GetName();
      QVERIFY2(!names.contains(name), qPrintable(name + " is there twice"));
      names << name;
      QImage const image = sampleOf(*ptr_cast<Symbol>(item->GetItem()));
      QVERIFY2(ink(image).pixels > 0, qPrintable(item->GetName()));
      auto const type = ptr_cast<Symbol>(item->GetItem())->GetType();
      if (type != SymbolType::Marker || item->GetCategory().startsWith("Markers/Towns")) continue;
      QVERIFY2(!seen[item->GetCategory()].contains(image), qPrintable(item->GetName()));
      seen[item->GetCategory()] << image;
    }
  }

  void theGalleryAppendsAndKnowsInnerCategories() {
    StyleGalleryClass gallery;
    QStringList categories{QStringLiteral("before")};
    QVERIFY(gallery.GetCategorys(library_, QString(), categories));
    QCOMPARE(categories, QStringList({"before", "NorthArrows", "Markers", "Lines", "Fills", "Texts"}));
    QVector<_ptr_t<SysDisplay::StyleGalleryItem>> arrows, roses;
    QVERIFY(gallery.GetItems(library_, "NorthArrows", QString(), arrows));
    QVERIFY(gallery.GetItems(library_, "NorthArrows/Compass roses", QString(), roses));
    QVERIFY(!roses.isEmpty() && arrows.size() > roses.size());
    QVERIFY(gallery.GetItems(library_, "NorthArrow", QString(), roses));
    QVERIFY(roses.size() < arrows.size());
    QVERIFY(!gallery.GetItems(folder_.filePath("none.style"), "NorthArrows", QString(), arrows));
    QVERIFY2(gallery.lastError().endsWith("none.style: there is no such file; check the name and the folder"),
             qPrintable(gallery.lastError()));
  }

  void theDialogAnswersThePreselectedSymbolAndTheChosenOne() {
    StyleSelectorDlg dialog(nullptr);
    dialog.SetStyleItem(NorthArrowStyle, items_[3]->GetItem());
    QVERIFY(sampleOf(*ptr_cast<Symbol>(dialog.GetStyleItem())) == sampleOf(*ptr_cast<Symbol>(items_[3]->GetItem())));
    auto* const grid = dialog.findChild<QListView*>("grid");
    dialog.show();
    QTest::keyClick(grid, Qt::Key_Right);
    QVERIFY(sampleOf(*ptr_cast<Symbol>(dialog.GetStyleItem())) == sampleOf(*ptr_cast<Symbol>(items_[4]->GetItem())));
    QTest::keyClick(grid, Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
  }

  void aSymbolOfNoLibraryIsKeptAndShownFirst() {
    auto const own = ptr_cast<MarkerSymbol>(ptr_cast<Symbol>(items_[0]->GetItem())->Clone());
    own->SetAngle(33);
    StyleSelectorDlg dialog(nullptr);
    dialog.SetStyleItem(NorthArrowStyle, own);
    QVERIFY(dialog.GetStyleItem() == own);
    dialog.SetStyleItem(NorthArrowStyle, nullptr);
    QVERIFY(!dialog.GetStyleItem());
    QVERIFY(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
  }

  void searchAndCategoryNarrowTheChoice() {
    StyleSelectorDlg dialog(nullptr);
    dialog.SetStyleItem(NorthArrowStyle, items_[0]->GetItem());
    dialog.show();
    auto* const grid = dialog.findChild<QListView*>("grid");
    auto* const search = dialog.findChild<QLineEdit*>();
    auto* const categories = dialog.findChild<QListWidget*>("categories");
    int const all = grid->model()->rowCount();
    QTest::keyClicks(search, "dial COMP");
    QCOMPARE(grid->model()->rowCount(), 1);
    QCOMPARE(grid->currentIndex().data().toString(), QString("Compass dial"));
    QTest::keyClick(search, Qt::Key_Escape);
    QCOMPARE(grid->model()->rowCount(), all);
    QVERIFY(dialog.isVisible());
    categories->setCurrentRow(2);
    QVERIFY(grid->model()->rowCount() > 0 && grid->model()->rowCount() < all);
    QTest::keyClicks(search, "nothing of the kind");
    QVERIFY(!dialog.GetStyleItem());
  }

  void aBrokenLibraryIsNamedAndTheOthersAreShown() {
    QString const broken = put(folder_.filePath("broken.style"), "{\"format\": ");
    SysUI::EnvironmentSetting::Instance()->SetPropertyValue("PATH", "StyleFilePaths",
                                                            broken + ",/missing.style," + library_);
    StyleSelectorDlg dialog(nullptr);
    dialog.SetStyleItem(FillStyle, nullptr);
    dialog.show();
    QVERIFY(dialog.findChild<QListView*>("grid")->model()->rowCount() >= 20);
    auto* const problems = dialog.findChild<QLabel*>("problems");
    QVERIFY(problems->isVisible());
    QVERIFY2(problems->text().startsWith(broken), qPrintable(problems->text()));
  }

  void northArrowsComeBeforeOtherMarkers() {
    StyleItemModel arrows(nullptr), markers(nullptr);
    arrows.load(NorthArrowStyle, styleFiles());
    markers.load(MarkerStyle, styleFiles());
    auto const first = arrows.symbol(0);
    SymbolChooser chooser(first, {"simpleMarker", "svgMarker", "layeredMarker"}, SymbolUse::NorthArrow, Qt::white,
                          nullptr);
    auto const* const shown = chooser.findChild<QListView*>("grid")->model();
    QCOMPARE(shown->rowCount(), arrows.rowCount() + markers.rowCount());
    auto const nameOf = [](QAbstractItemModel const& model, int row) { return model.index(row, 0).data().toString(); };
    for (int row = 0; row < arrows.rowCount(); ++row) QCOMPARE(nameOf(*shown, row), nameOf(arrows, row));
    QCOMPARE(nameOf(*shown, arrows.rowCount()), nameOf(markers, 0));
  }

  void aSymbolIsChangedInTheChooserAndKeptInALibraryOfOnesOwn() {
    qputenv("XDG_DATA_HOME", folder_.filePath("data").toUtf8());
    auto const symbol = SysUtility::make<SysDisplay::SimpleLineSymbol>();
    SymbolChooser chooser(symbol, {"simpleLine", "dashLine", "layeredLine"}, SymbolUse::Any, Qt::yellow, nullptr);
    auto& model = chooser.findChild<PropertySheet*>()->model();
    QVERIFY(model.take(model.indexOf(QStringList("width")), 3.5, QString()));
    QVERIFY(!model.take(model.indexOf(QStringList("width")), -1, "-1"));
    QVERIFY(!model.take(model.indexOf(QStringList("type")), "markerLine", QString()));
    QCOMPARE(ptr_cast<SysDisplay::LineSymbol>(chooser.symbol())->GetWidth(), 3.5);
    QVERIFY(model.take(model.indexOf(QStringList("type")), "layeredLine", QString()));  // with itself as a layer
    model.refresh();
    QCOMPARE(model.data(model.indexOf({"layers", "0", "width"}), Qt::DisplayRole).toString().left(3), QString("3.5"));
    QVERIFY(model.take(model.indexOf(QStringList("type")), "simpleLine", QString()));
    QCOMPARE(ptr_cast<SysDisplay::LineSymbol>(chooser.symbol())->GetWidth(), 3.5);
    QVERIFY(symbol->GetWidth() != 3.5);  // the dialog may still be cancelled

    QCOMPARE(saveToOwnLibrary("Broad", chooser.symbol()), QString());
    QCOMPARE(saveToOwnLibrary("Broad", chooser.symbol()), QString());  // once
    QCOMPARE(styleFiles(), QStringList({ownStyleFile(), library_}));
    StyleItemModel items(nullptr);
    items.load(LineStyle, {ownStyleFile()});
    QCOMPARE(items.rowCount(), 1);
    QCOMPARE(items.rowLike(*chooser.symbol()), 0);

    put(ownStyleFile(), "{");
    QVERIFY(saveToOwnLibrary("Broad", symbol).contains(ownStyleFile()));
    QCOMPARE(contentOf(ownStyleFile()), QByteArray("{"));
    QFile::remove(ownStyleFile());
  }

private:
  QTemporaryDir folder_;
  QString library_;
  QVector<_ptr_t<SysDisplay::StyleGalleryItem>> items_;
};

QTEST_MAIN(StyleTest)
#include "StyleTest.moc"
