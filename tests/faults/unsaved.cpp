#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/MapDocumentHost.h"
#include "host/desktop/DialogAnswers.h"
#include "host/desktop/Farewell.h"
#include "host/desktop/Interrupt.h"
#include "host/desktop/MainWindow.h"

#include <cstdio>
#include <cstdlib>

// What scripts/kills kills, or asks to end, and what starts after it:
//
//     plotvane_unsaved work DOCUMENT       draws in the window; copies are written, and every fourth step is saved;
//                                          with PLOTVANE_PARTS elements before that, a copy is read between events, too
//     plotvane_unsaved keep DOCUMENT       draws once and ends as if killed, when a copy was written, or that was told
//     plotvane_unsaved recover DOCUMENT    recovers what was lost, saves it, and tells the number of its last step
namespace {

void tell(char const* what, int step) {
  std::printf("%s %d\n", what, step);
  std::fflush(stdout);
}

int lastStep(MainWindow& window) {
  int last = 0;
  QString const text = QString::fromUtf8(SysCarto::MapDocumentHost::text(window.bench().session().document()));
  for (auto it = QRegularExpression("step (\\d+)").globalMatch(text); it.hasNext();)
    last = qMax(last, it.next().captured(1).toInt());
  return last;
}

void addText(WorkbenchPage& page, int step) {
  auto const text = make<SysCarto::TextElement>();
  text->setText(QString("step %1").arg(step));
  page.container().AddElement(text);
}

bool addParts(MainWindow& window, int parts) {
  WorkbenchPage page(window.bench());
  for (int i = 0; i < parts; ++i) page.container().AddElement(make<SysCarto::TextElement>());
  return parts == 0 || window.bench().session().save();
}

// As the timer would have it.
void readBetweenEvents(MainWindow& window) {
  constexpr int longEnoughMs = 400;
  emit window.bench().session().replaced();
  QTest::qWait(longEnoughMs);
}

int keep(MainWindow& window, QString const& document) {
  DialogAnswers answers;
  if (!window.open(document)) {
    std::fprintf(stderr, "plotvane: %s\n", qPrintable(answers.takeProblem()));
    return 1;
  }
  WorkbenchPage page(window.bench());
  addText(page, 1);
  RecoveryCopy::keepAll();
  QCoreApplication::processEvents();
  auto const* const notice = window.findChild<QLabel*>("label_Notice");
  bool const isTold = notice->isVisible();
  if (isTold) std::fprintf(stderr, "plotvane: %s\n", qPrintable(notice->text()));
  std::exit(isTold ? 1 : 0);  // the window does not come to its end
}

int work(MainWindow& window, QString const& document) {
  int const parts = qEnvironmentVariableIntValue("PLOTVANE_PARTS");
  if (!window.open(document) || !addParts(window, parts)) return 1;
  WorkbenchPage page(window.bench());
  { Interrupt const ofAnExport; }
  tell("ready", 0);
  for (int step = 1; step < 1000; ++step) {
    tell("begun", step);
    addText(page, step);
    if (step % 4 == 0) {
      if (!window.bench().session().save()) return 1;
      tell("saved", step);
    } else {
      if (parts > 0) {
        tell("reading", step);
        readBetweenEvents(window);
      }
      RecoveryCopy::keepAll();
      tell("kept", step);
    }
    QCoreApplication::processEvents();
  }
  return 1;  // nobody killed it
}

int statusOfSaved(MainWindow& window) { return !window.bench().session().isModified() && window.close() ? 0 : 1; }

int recover(MainWindow& window, QString const& document) {
  DialogAnswers answers;
  answers.add({DialogAnswers::Answer::Kind::Accept, {}, {}});
  bool const isRecovered = window.recover(document);
  if (!isRecovered && !window.open(document)) return 1;
  tell(isRecovered ? "recovered" : "opened", lastStep(window));
  window.actions().refresh();
  window.actions().find("Host_Save")->trigger();
  if (!window.bench().session().isFileChanged()) return statusOfSaved(window);
  tell("asked", lastStep(window));  // a save had just been done when the window was killed; that one is kept
  answers.takeProblem();
  answers.add({DialogAnswers::Answer::Kind::Widget, "button", "Discard"});
  return window.close() ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  prepareApplication();
  Farewell const farewell;
  QStringList const arguments = QCoreApplication::arguments();
  if (arguments.size() != 3) return 2;
  MainWindow window;
  window.show();
  if (arguments[1] == "work") return work(window, arguments[2]);
  return arguments[1] == "keep" ? keep(window, arguments[2]) : recover(window, arguments[2]);
}
