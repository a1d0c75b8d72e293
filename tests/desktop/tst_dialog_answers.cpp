#include "Dialogs.h"

#include <QVBoxLayout>

#include <optional>

namespace {

// As a command's own dialog: an edit with a validator, and a second dialog behind a button.
class SampleDialog : public QDialog {
  template <class Widget>
  static Widget* named(Widget* widget, char const* name) {
    widget->setObjectName(name);
    return widget;
  }

public:
  SampleDialog() {
    setWindowTitle("Sample");
    setObjectName("SampleDialog");
    dpi->setValidator(new QIntValidator(1, 999, dpi));
    form->addItems({"A4", "A3"});
    border->setCheckable(true);
    border->setChecked(false);
    auto* const ask = named(new QPushButton("Ask"), "pushButton_Ask");
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* const box = new QVBoxLayout(this);
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

  QLineEdit* dpi = named(new QLineEdit, "lineEdit_DPI");
  QCheckBox* isOn = named(new QCheckBox, "checkBox_On");
  QRadioButton* portrait = named(new QRadioButton("Portrait"), "radioButton_Portrait");
  QComboBox* form = named(new QComboBox, "comboBox_Form");
  QGroupBox* border = named(new QGroupBox("Border"), "groupBox_Border");
  QSpinBox* gap = named(new QSpinBox(border), "spinBox_BorderGap");
  QString switches;
  int edits = 0, activations = 0, reply = QMessageBox::NoButton;
};

}  // namespace

class DialogAnswersTest : public QObject {
  Q_OBJECT

private slots:
  void init() { person_.emplace(); }
  void cleanup() { person_.reset(); }

  void answersReachTheWidgetsAsAPersonsDo() {
    SampleDialog dialog;
    for (auto const& [widget, value] :
         {std::make_pair("lineEdit_DPI", "150"), std::make_pair("checkBox_On", "on"),
          std::make_pair("radioButton_Portrait", "on"), std::make_pair("comboBox_Form", "a3"),
          std::make_pair("groupBox_Border", "on"), std::make_pair("spinBox_BorderGap", "7"),
          std::make_pair("groupBox_Border", "off")})
      person_->sets(widget, value);
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
    person_->sets("pushButton_Ask", "click");
    person_->sets("button", "No");
    person_->sets("checkBox_On", "on");
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.reply, int(QMessageBox::No));
    QVERIFY(dialog.isOn->isChecked());
  }

  void whatIsWrongIsNamed_data() {
    Rows<QString, QString, QString> row;
    row("a dialog without an answer", "", "", "the dialog \"Sample\" (SampleDialog): nobody answers it; put");
    row("an answer for another dialog", "comboBox_Other", "1", "next is the answer for comboBox_Other");
    row("a value that the validator refuses", "lineEdit_DPI", "many",
        "lineEdit_DPI does not take \"many\"; it takes a whole number from 1 to 999");
    row("a number behind a box that is off", "spinBox_BorderGap", "7",
        "spinBox_BorderGap does not take \"7\": it is switched off");
    row("an entry that a list has not", "comboBox_Form", "A9",
        "comboBox_Form does not take \"A9\"; it takes \"A4\", \"A3\"");
    row("a value that the dialog refuses", "lineEdit_DPI", "13", "it can't be accepted like this");
    row("a message box without an answer", "pushButton_Ask", "click", "the message box \"Sure\" (\"Really?\")");
  }
  void whatIsWrongIsNamed() {
    auto const [widget, value, problem] = fetched<QString, QString, QString>();
    SampleDialog dialog;
    if (!widget.isEmpty()) person_->sets(widget, value);
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QString const told = person_->problem();
    QVERIFY2(told.contains(problem), qPrintable(told));
  }

  void aBoxThatOnlyTellsNeedsNoAnswerButAWarningDoes() {
    QMessageBox::information(nullptr, "Information", "Done");
    QMessageBox::warning(nullptr, "Warning", "Not done");
    QVERIFY(person_->problem().contains("nobody answers it"));
  }

private:
  std::optional<Person> person_;
};

QTEST_MAIN(DialogAnswersTest)
#include "tst_dialog_answers.moc"
