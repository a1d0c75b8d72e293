#include "Test.h"

#include "host/desktop/DialogAnswers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <optional>

using Answer = DialogAnswers::Answer;
using Kind = Answer::Kind;

namespace {

// As a command's own dialog: an edit with a validator, and a second dialog behind a button.
class SampleDialog : public QDialog {
public:
  SampleDialog() {
    setWindowTitle("Sample");
    setObjectName("SampleDialog");
    auto* const box = new QVBoxLayout(this);
    dpi = named(new QLineEdit, "lineEdit_DPI");
    dpi->setValidator(new QIntValidator(1, 999, dpi));
    isOn = named(new QCheckBox, "checkBox_On");
    portrait = named(new QRadioButton("Portrait"), "radioButton_Portrait");
    form = named(new QComboBox, "comboBox_Form");
    form->addItems({"A4", "A3"});
    border = named(new QGroupBox("Border"), "groupBox_Border");
    border->setCheckable(true);
    border->setChecked(false);
    gap = named(new QSpinBox(border), "spinBox_BorderGap");
    auto* const ask = named(new QPushButton("Ask"), "pushButton_Ask");
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (QWidget* widget : QList<QWidget*>{dpi, isOn, portrait, form, border, ask, buttons}) box->addWidget(widget);
    connect(dpi, &QLineEdit::textEdited, [this] { ++edits; });
    connect(form, QOverload<int>::of(&QComboBox::activated), [this] { ++activations; });
    connect(border, &QGroupBox::clicked, [this](bool isChecked) { switches += isChecked ? "on " : "off "; });
    connect(ask, &QPushButton::clicked, [this] { reply = QMessageBox::question(this, "Sure", "Really?"); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
      if (dpi->text() != "13") accept();  // a dialog may refuse what it was given
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  }

  QLineEdit* dpi;
  QCheckBox* isOn;
  QRadioButton* portrait;
  QComboBox* form;
  QGroupBox* border;
  QSpinBox* gap;
  QString switches;
  int edits = 0, activations = 0, reply = QMessageBox::NoButton;

private:
  template <class Widget>
  static Widget* named(Widget* widget, char const* name) {
    widget->setObjectName(name);
    return widget;
  }
};

Answer answer(QString const& widget, QString const& value) { return {Kind::Widget, widget, value}; }

}  // namespace

class DialogAnswersTest : public QObject {
  Q_OBJECT

private slots:
  void init() { answers_.emplace(); }
  void cleanup() { QCOMPARE(answers_->takeProblem(), QString()); }

  void answersReachTheWidgetsAsAPersonsDo() {
    SampleDialog dialog;
    for (auto const& [widget, value] :
         {std::make_pair("lineEdit_DPI", "150"), std::make_pair("checkBox_On", "on"),
          std::make_pair("radioButton_Portrait", "on"), std::make_pair("comboBox_Form", "a3"),
          std::make_pair("groupBox_Border", "on"), std::make_pair("spinBox_BorderGap", "7"),
          std::make_pair("groupBox_Border", "off")})
      answers_->add(answer(widget, value));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.dpi->text(), QString("150"));
    QCOMPARE(dialog.edits, 3);
    QCOMPARE(dialog.activations, 1);
    QVERIFY(dialog.isOn->isChecked() && dialog.portrait->isChecked());
    QCOMPARE(dialog.form->currentText(), QString("A3"));
    QCOMPARE(dialog.switches, QString("on off "));
    QCOMPARE(dialog.gap->value(), 7);
  }

  void aMessageBoxBehindAButtonTakesTheNextAnswer() {
    SampleDialog dialog;
    answers_->add(answer("pushButton_Ask", "click"));
    answers_->add(answer("button", "No"));
    answers_->add(answer("checkBox_On", "on"));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.reply, int(QMessageBox::No));
    QVERIFY(dialog.isOn->isChecked());
  }

  void cancelRejectsAndAcceptLeavesAllAsItIs() {
    SampleDialog cancelled, accepted;
    answers_->add(answer("checkBox_On", "on"));
    answers_->add({Kind::Cancel, {}, {}});
    answers_->add({Kind::Accept, {}, {}});
    QCOMPARE(cancelled.exec(), int(QDialog::Rejected));
    QCOMPARE(accepted.exec(), int(QDialog::Accepted));
  }

  void whatIsWrongIsNamed_data() {
    Rows<QString, QString, QString> row;
    row("a dialog without an answer", "", "", "the dialog \"Sample\" (SampleDialog): nobody answers it; put");
    row("an answer for another dialog", "comboBox_Other", "1", "the next answer is for comboBox_Other");
    row("a value that the validator refuses", "lineEdit_DPI", "many", "lineEdit_DPI does not take \"many\"");
    row("a number behind a box that is off", "spinBox_BorderGap", "7", "spinBox_BorderGap does not take \"7\"");
    row("an entry that a list has not", "comboBox_Form", "A9", "comboBox_Form does not take \"A9\"");
    row("a value that the dialog refuses", "lineEdit_DPI", "13", "it can't be accepted like this");
    row("a message box without an answer", "pushButton_Ask", "click", "the message box \"Sure\" (\"Really?\")");
  }
  void whatIsWrongIsNamed() {
    auto const [widget, value, problem] = fetched<QString, QString, QString>();
    SampleDialog dialog;
    if (!widget.isEmpty()) answers_->add(answer(widget, value));
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QString const told = answers_->takeProblem();
    QVERIFY2(told.contains(problem), qPrintable(told));
  }

  void aFieldThatOnlyAButtonFillsTakesItsAnswer() {
    SampleDialog dialog;
    dialog.dpi->setReadOnly(true);
    answers_->add(answer("lineEdit_DPI", "150"));
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.dpi->text(), QString("150"));
  }

  void aBoxThatOnlyTellsNeedsNoAnswerButAWarningDoes() {
    QMessageBox::information(nullptr, "Information", "Done");
    QMessageBox::warning(nullptr, "Warning", "Not done");
    QVERIFY(answers_->takeProblem().contains("nobody answers it"));
  }

  void aFileDialogTakesAPath() {
    QTemporaryDir folder;
    QString const path = folder.filePath("out.png");
    answers_->add(answer("file", path));
    QCOMPARE(
        QFileDialog::getSaveFileName(nullptr, "Save", QString(), QString(), nullptr, QFileDialog::DontUseNativeDialog),
        path);
  }

private:
  std::optional<DialogAnswers> answers_;
};

QTEST_MAIN(DialogAnswersTest)
#include "tst_dialog_answers.moc"
