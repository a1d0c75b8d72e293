#include "Files.h"

#include "host/SysDisplay/StyleLibrary.h"

using SysDisplay::readStyleLibrary;
using SysDisplay::StyleLibrary;
using SysDisplay::writeStyleLibrary;

class StyleLibraryTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    whole_ = contentOf(PLOTVANE_SOURCE_DIR "/fuzz/seeds/style/everything.style");
    QVERIFY(!whole_.isEmpty());
  }

  void aLibraryIsWrittenAsItWasRead() {
    auto const library = read(whole_);
    QVERIFY2(library, qPrintable(error_));
    QString const path = folder_.filePath("again.style");
    QCOMPARE(writeStyleLibrary(path, *library), QString());
    QCOMPARE(QJsonDocument::fromJson(contentOf(path)), QJsonDocument::fromJson(whole_));
  }

  void whatCannotBeReadAgainIsNotWritten() {
    QString const path = folder_.filePath("kept.style");
    QCOMPARE(writeStyleLibrary(path, *read(whole_)), QString());
    QByteArray const before = contentOf(path);
    StyleLibrary nameless = *read(whole_);
    nameless.categories[1].items[0].name = QStringLiteral(" ");
    QVERIFY(writeStyleLibrary(path, nameless).contains("categories[1].items[0].name: is empty"));
    StyleLibrary hollow = *read(whole_);
    hollow.categories[2].items[0].symbol = nullptr;
    QVERIFY(writeStyleLibrary(path, hollow).contains("categories[2].items[0].symbol"));
    QCOMPARE(contentOf(path), before);
  }

  void oneBitFlippedNeverPassesUnnoticedOrCrashes() {
    int refused = 0;
    for (int place = 0; place < whole_.size(); ++place) {
      QByteArray damaged = whole_;
      damaged[place] = static_cast<char>(damaged[place] ^ (1 << place % 8));
      if (read(damaged)) continue;
      ++refused;
      QVERIFY2(error_.contains(": ") && error_.size() < 500, qPrintable(error_));
    }
    QVERIFY(refused > whole_.size() / 3);
  }

  void refused_data() {
    Rows<QByteArray, QByteArray, QString> row;
    row("a document", "plotvane-style", "plotvane-document", "format: is not “plotvane-style”");
    row("a newer version", "\"version\": 1", "\"version\": 2", "version: the library was written by a newer version");
    row("no name", "\"Needle\"", "\"\"", "categories[0].items[0].name: is empty");
    row("a colour that is none", "#3366cc", "blue", "categories[3].items[0].symbol.color");
    row("an outside picture", "<path ", "<image href=\\\"/etc/passwd\\\"/><path ",
        "categories[0].items[0].symbol.svg: the SVG refers to “/etc/passwd”");
  }

  void refused() {
    auto const [from, to, sentence] = fetched<QByteArray, QByteArray, QString>();
    QByteArray damaged = whole_;
    damaged.replace(damaged.indexOf(from), from.size(), to);
    QVERIFY(!read(damaged));
    QVERIFY2(error_.contains(sentence), qPrintable(error_));
    QVERIFY2(error_.startsWith(folder_.filePath("read.style: ")), qPrintable(error_));
  }

private:
  std::optional<StyleLibrary> read(QByteArray const& content) {
    error_.clear();
    return readStyleLibrary(put(folder_.filePath("read.style"), content), error_);
  }

  QTemporaryDir folder_;
  QByteArray whole_;
  QString error_;
};

QTEST_MAIN(StyleLibraryTest)
#include "StyleLibraryTest.moc"
