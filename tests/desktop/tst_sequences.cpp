#include "desktop/KnownTexts.h"
#include "desktop/RandomHand.h"

#include <iostream>

using SysAdapterUI::ContentsTree;
using SysCarto::MapDocumentHost;

namespace {

// Each step has dice of its own, so that it does much the same when others are left out.
struct Sequence {
  QString document;
  QVector<quint32> steps;

  static Sequence rolled(QString const& document, quint32 seed, int count) {
    Sequence sequence{document, {}};
    for (Dice dice(seed); sequence.steps.size() < count;) sequence.steps << dice.number();
    return sequence;
  }

  static Sequence read(QString const& text) {
    QStringList const words = text.split(' ', Qt::SkipEmptyParts);
    Sequence sequence{words.value(0), {}};
    for (QString const& word : words.mid(1)) sequence.steps << word.toUInt(nullptr, 16);
    return sequence;
  }

  QString text() const {
    QStringList words{document};
    for (quint32 step : steps) words << QString::number(step, 16);
    return words.join(' ');
  }
};

int numberFrom(char const* variable, int otherwise) {
  bool isThere = false;
  int const number = qEnvironmentVariableIntValue(variable, &isThere);
  return isThere ? number : otherwise;
}

}  // namespace

/// Random sequences of what a person does in the window. What is wrong is told with the line that does it again;
/// scripts/sequences makes it short. PLOTVANE_SEQUENCES, PLOTVANE_STEPS and PLOTVANE_SEED say how many, how long and
/// which; PLOTVANE_SEQUENCE is one that was told, which then says what it does.
class SequencesTest : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    prepareWorld(folder_.path());
    qputenv("HOME", QFile::encodeName(folder_.path()));
    QVERIFY(QDir::setCurrent(folder_.path()));
  }

  void everyDocumentIsWholeAfterAllThatIsDoneToIt() {
    if (qEnvironmentVariableIsSet("PLOTVANE_SEQUENCE"))
      return judge(Sequence::read(QString::fromUtf8(qgetenv("PLOTVANE_SEQUENCE"))), true);
    static QStringList const documents{"world.kdx", "aegean.kdx", "world.kdx", "aegean.kdx", "atlas.kdx"};
    int const seed = numberFrom("PLOTVANE_SEED", 1), count = numberFrom("PLOTVANE_SEQUENCES", 3);
    for (int i = seed; i < seed + count; ++i) {
      QString const document = documents[i % documents.size()];
      judge(Sequence::rolled(document, static_cast<quint32>(i), numberFrom("PLOTVANE_STEPS", 40)), false);
      if (QTest::currentTestFailed()) return;
    }
  }

private:
  void judge(Sequence const& sequence, bool tellsAll) {
    if (!tellsAll && qEnvironmentVariableIsSet("PLOTVANE_SEQUENCES"))
      std::cout << "sequence: " << qPrintable(sequence.text()) << std::endl;
    QString const wrong = done(sequence, tellsAll);
    QVERIFY2(wrong.isEmpty(), qPrintable(wrong + "\nPLOTVANE_SEQUENCE='" + sequence.text() + '\''));
  }

  void prepare() {
    QDir(folder_.path()).removeRecursively();
    QDir().mkpath(folder_.path());
    QDir::setCurrent(folder_.path());
    for (char const* const name : {"world.kdx", "aegean.kdx", "atlas.kdx"}) sampleIn(folder_.path(), name);
    put(folder_.filePath("picture.png"), contentOf(PLOTVANE_SOURCE_DIR "/docs/world.png"));
    QSettings().clear();
    QApplication::clipboard()->clear();
  }

  QString done(Sequence const& sequence, bool tellsAll) {
    prepare();
    MainWindow window;
    window.show();
    auto& session = window.bench().session();
    auto& document = session.document();
    {
      Dice dice(1);
      RandomPerson const person(dice, folder_.path());
      if (!window.open(folder_.filePath(sequence.document))) return "it can't be opened";
    }
    KnownTexts texts(document);
    for (int i = 0; i < sequence.steps.size(); ++i) {
      RandomHand hand(window, sequence.steps[i], folder_.path());
      if (tellsAll) std::cout << "step " << std::hex << sequence.steps[i] << std::dec << ": " << std::flush;
      auto const before = document.GetPageLayout();
      hand.act();
      settle();
      if (tellsAll) std::cout << qPrintable(hand.said()) << std::endl;
      QString wrong = judged(hand, texts, session, document.GetPageLayout() != before);
      if (wrong.isEmpty()) wrong = panels(window);
      if (!wrong.isEmpty())
        return QString("step %1 of %2 (%3): ").arg(i + 1).arg(sequence.steps.size()).arg(hand.said()) + wrong;
    }
    QString const wrong = atTheEnd(window, texts);
    MapDocumentHost::history(document)->setClean();
    return wrong;
  }

  static QString judged(RandomHand const& hand, KnownTexts& texts, DocumentSession& session, bool isOther) {
    bool clears = isOther;
    for (QString const& command : hand.commands()) {
      if (command == "Plotvane_LockDataFrame" || command == "Plotvane_UnlockDataFrame") texts.leaveOut("locked");
      if (command == "Plotvane_AlignToMargins") texts.leaveOut("alignToMargins");
      if (command == "Plotvane_PageSetting")
        for (char const* const set : {"form", "width", "height", "orientation", "border", "background", "shadow"})
          texts.leaveOut(QString("page/%1").arg(set));
      clears |=
          QStringList{"Plotvane_PageSetting", "Plotvane_ChangePageLayout", "Host_New", "Host_NewFromData", "Host_Open"}
              .contains(command);
    }
    if (hand.isMixed()) texts.startAnew();
    QString const wrong = texts.look(clears, hand.said().contains("Plotvane_") || hand.said().contains("menu: "));
    if (!wrong.isEmpty()) return wrong;
    bool const claimsToBeSaved = !session.isModified() && !session.path().isEmpty();
    if (claimsToBeSaved && texts.now() != contentOf(session.path())) return "it counts as saved and is not";
    return QString();
  }

  // What stands beside the page shows what there is.
  static QString panels(MainWindow& window) {
    auto const layout = window.bench().session().document().GetPageLayout();
    if (!layout) return QString();
    QList<_ptr_t<SysCarto::Map>> maps;
    layout->GetMaps(maps);
    auto const& contents = window.findChild<ContentsTree*>()->rows();
    bool const isEmpty = !contents.rowAt(contents.index(0, 0)).map;  // which a row says
    if (contents.rowCount() != maps.size() && !(isEmpty && maps.isEmpty()))
      return QString("the contents show %1 maps of %2").arg(contents.rowCount()).arg(maps.size());
    for (int i = 0; i < maps.size(); ++i)
      if (contents.index(i, 0).data().toString() != maps[i]->GetName())
        return QString("the contents call “%1” “%2”").arg(maps[i]->GetName(), contents.index(i, 0).data().toString());
    auto const elements = layout->GetGraphicsContainer()->GetElements();
    auto const& list = *window.findChild<ElementList*>();
    if (list.isVisible() && list.model()->rowCount() != elements.size())
      return QString("the list shows %1 elements of %2").arg(list.model()->rowCount()).arg(elements.size());
    if (window.isWindowModified() != window.bench().session().isModified()) return "the title tells a wrong state";
    return QString();
  }

  QString atTheEnd(MainWindow& window, KnownTexts& texts) {
    auto& session = window.bench().session();
    Dice dice(1);
    RandomPerson const person(dice, folder_.path());
    window.bench().views().layoutView().finishEditing();
    settle();
    QString wrong = texts.look(false, false);
    if (wrong.isEmpty()) wrong = texts.goThrough();
    if (!wrong.isEmpty() || !session.document().GetPageLayout()) return wrong;
    QString const path = folder_.filePath("end.kdx");
    if (!session.saveAs(path)) return "it can't be saved: " + session.takeProblem();
    QByteArray const saved = contentOf(path);
    if (!session.open(path)) return "what was saved can't be read: " + session.takeProblem();
    if (texts.now() != saved) return "saved, read and saved again it is another one";
    return QString();
  }

  QTemporaryDir folder_;
};

QTEST_MAIN(SequencesTest)
#include "tst_sequences.moc"
