#include "Files.h"

#include <SysCarto/MapDocument.h>

#include <QLoggingCategory>

using SysCarto::MapDocument;

// A document with one of everything, damaged at one place after the other. None may crash, and each opens or answers a
// sentence; the sanitizers see what else may happen.
class TortureTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QLoggingCategory::setFilterRules(QStringLiteral("qt.svg.warning=false"));
    whole_ = contentOf(QStringLiteral(PLOTVANE_SOURCE_DIR "/fuzz/seeds/document/everything.kdx"));
    QVERIFY(whole_.size() > 5000);
    QVERIFY(open(whole_));
  }

  void cutOffAnywhereItIsRefused() {
    for (int length = 0; length < whole_.size() - 1; length += whole_.size() / 1000)
      QVERIFY2(!open(whole_.left(length)), qPrintable(QString::number(length)));
  }

  void withOneBitFlippedItOpensOrIsRefused() {
    int refused = 0, tried = 0;
    // As many however long the document grows, since each takes longer then, too.
    for (int place = 0; place < whole_.size(); place += whole_.size() / 700, ++tried) {
      QByteArray damaged = whole_;
      damaged[place] = static_cast<char>(damaged[place] ^ (1 << place % 8));
      refused += open(damaged) ? 0 : 1;
    }
    // Most of a document is punctuation, names and numbers in their ranges; the rest is texts and places.
    QVERIFY2(refused > tried / 3 && refused < tried, qPrintable(QString::number(refused)));
  }

private:
  // A refusal is one sentence about the file and leaves the document empty; an opened page can be drawn.
  bool open(QByteArray const& content) {
    QString const path = put(folder_.filePath("damaged.kdx"), content);

    MapDocument document;
    if (document.Open(path)) {
      if (document.GetPageLayout()->GetPage()) [&] { QVERIFY(!document.Thumbnail().isNull()); }();
      return true;
    }
    [&] {
      QCOMPARE(document.GetErrors().size(), 1);
      QVERIFY2(document.GetErrors()[0].startsWith(path + QStringLiteral(": ")), qPrintable(document.GetErrors()[0]));
      QVERIFY(document.GetErrors()[0].size() < 500);
      QVERIFY(!document.GetPageLayout());
    }();
    return false;
  }

  QTemporaryDir folder_;
  QByteArray whole_;
};

QTEST_MAIN(TortureTest)
#include "tst_torture.moc"
