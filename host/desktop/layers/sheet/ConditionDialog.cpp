#include "ConditionDialog.h"

#include "ReturnKeeper.h"
#include "TestBar.h"

#include "host/SysAdapterUI/SystemChooser.h"
#include "host/SysCarto/layers/FeatureTable.h"
#include "host/SysCarto/maps/VectorLayer.h"
#include "host/desktop/layers/MapSystem.h"

#include <QCollator>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using SysCarto::FieldDescription;
using SysCarto::SourceSettings;

namespace {

constexpr int mostValues = 500;
constexpr int sliceMs = 15;
constexpr qint64 patienceForValuesMs = 5000;
constexpr int linesOfText = 5, buttonsInARow = 8, shownResults = 4, charactersOfAResult = 60;

// With the blanks about them that are wanted, and a mark where the cursor is to be.
constexpr char const* operators[] = {
    " = ",   " <> ", " < ",   " <= ", " > ", " >= ", " LIKE '%#%'", " IN (#)", " IS NULL",
    " AND ", " OR ", " NOT ", "(#)",  " + ", " - ",  " * ",         " / ",     "CONCAT(#)"};
constexpr QLatin1Char cursorMark('#');

// Words of the language, which a field may be called, too.
bool isWord(QString const& name) {
  static QStringList const words = {
      QStringLiteral("AND"),     QStringLiteral("OR"),     QStringLiteral("NOT"),      QStringLiteral("LIKE"),
      QStringLiteral("IN"),      QStringLiteral("IS"),     QStringLiteral("NULL"),     QStringLiteral("CAST"),
      QStringLiteral("BETWEEN"), QStringLiteral("ESCAPE"), QStringLiteral("ILIKE"),    QStringLiteral("SELECT"),
      QStringLiteral("FROM"),    QStringLiteral("WHERE"),  QStringLiteral("ORDER"),    QStringLiteral("BY"),
      QStringLiteral("AS"),      QStringLiteral("ON"),     QStringLiteral("LEFT"),     QStringLiteral("JOIN"),
      QStringLiteral("UNION"),   QStringLiteral("ALL"),    QStringLiteral("DESC"),     QStringLiteral("ASC"),
      QStringLiteral("LIMIT"),   QStringLiteral("OFFSET"), QStringLiteral("DISTINCT"), QStringLiteral("EXCEPT"),
      QStringLiteral("EXCLUDE"), QStringLiteral("HIDDEN")};
  return words.contains(name, Qt::CaseInsensitive);
}

}  // namespace

QString passingText(qint64 passing, qint64 features) {
  QLocale const locale;
  return ConditionDialog::tr("%1 of %2 features pass.").arg(locale.toString(passing), locale.toString(features));
}

QString fieldKindText(FieldDescription::Kind kind) {
  switch (kind) {
    case FieldDescription::Kind::Text: return ConditionDialog::tr("text");
    case FieldDescription::Kind::Integer: return ConditionDialog::tr("whole number");
    case FieldDescription::Kind::Real: return ConditionDialog::tr("number");
    case FieldDescription::Kind::DateTime: return ConditionDialog::tr("date or time");
    case FieldDescription::Kind::Other: break;
  }
  return ConditionDialog::tr("other");
}

ConditionDialog::ConditionDialog(SourceSettings source, Kind kind, QString const& text, QWidget* parent)
    : QDialog(parent), source_(std::move(source)), kind_(kind) {
  bool const isCondition = kind == Kind::Condition;
  setWindowTitle(isCondition ? tr("Condition") : tr("Expression"));
  auto const begin = [this](QString& problem) {
    return SysCarto::ClassCounts::open(source_, text_->toPlainText().trimmed(), problem);
  };
  auto const tell = [](SysCarto::ClassCounts const& counts) {
    return passingText(counts.counts().front(), counts.features());
  };
  test_ = new TestBar(tr("&Test"), tr("Count the features that pass"), begin, tell, this);
  auto* const testResults = new QPushButton(tr("&Test"), this);
  testResults->setObjectName(QStringLiteral("pushButton_TestExpression"));
  testResults->setToolTip(tr("Show what comes of the first features"));
  testResults->setAutoDefault(false);
  testResults->setVisible(!isCondition);
  test_->findChild<QPushButton*>(QStringLiteral("pushButton_Test"))->setVisible(isCondition);
  connect(testResults, &QPushButton::clicked, this, &ConditionDialog::testExpression);

  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  new ReturnKeeper(*this);
  connect(buttons, &QDialogButtonBox::accepted, this, &ConditionDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* const testRow = new QHBoxLayout;
  testRow->addWidget(testResults);
  testRow->addWidget(test_, 1);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(build(), 1);
  column->addLayout(testRow);
  column->addWidget(buttons);
  resize(620, 560);

  connect(&slices_, &QTimer::timeout, this, &ConditionDialog::readValues);
  fillFields();
  text_->setPlainText(text);
  text_->moveCursor(QTextCursor::End);
  text_->setFocus();
  connect(text_, &QPlainTextEdit::textChanged, test_, &TestBar::clear);
}

ConditionDialog::~ConditionDialog() = default;

QString ConditionDialog::text() const { return text_->toPlainText().trimmed(); }

QWidget* ConditionDialog::build() {
  auto* const content = new QWidget(this);
  names_ = new QTreeWidget(content);
  names_->setObjectName(QStringLiteral("treeWidget_Fields"));
  names_->setHeaderLabels({tr("Field"), tr("Kind")});
  names_->setRootIsDecorated(false);
  values_ = new QListWidget(content);
  values_->setObjectName(QStringLiteral("listWidget_Values"));
  text_ = new QPlainTextEdit(content);
  text_->setObjectName(QStringLiteral("plainTextEdit_Condition"));
  text_->setTabChangesFocus(true);
  text_->setMinimumHeight(linesOfText * text_->fontMetrics().lineSpacing());
  bool const isCondition = kind_ == Kind::Condition;
  text_->setPlaceholderText(isCondition ? tr("population > 1000000 AND name LIKE 'A%'") : tr("population / 1000"));
  auto const labelled = [content](QString const& text, QWidget* buddy) {
    auto* const label = new QLabel(text, content);
    label->setBuddy(buddy);
    return label;
  };
  auto* const grid = new QGridLayout(content);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(labelled(tr("&Fields"), names_), 0, 0);
  grid->addWidget(labelled(tr("&Values of the field"), values_), 0, 1);
  grid->addWidget(names_, 1, 0);
  grid->addWidget(values_, 1, 1);
  grid->addWidget(buildOperators(), 2, 0, 1, 2);
  grid->addWidget(labelled(isCondition ? tr("&Condition; empty for all features") : tr("E&xpression"), text_), 3, 0, 1,
                  2);
  grid->addWidget(text_, 4, 0, 1, 2);
  grid->setRowStretch(1, 3);
  grid->setRowStretch(4, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  connect(names_, &QTreeWidget::currentItemChanged, this, &ConditionDialog::showValues);
  connect(names_, &QTreeWidget::itemActivated, this,
          [this](QTreeWidgetItem* item) { insert(quotedField(item->text(0))); });
  connect(values_, &QListWidget::itemActivated, this, [this](QListWidgetItem* item) {
    int const field = names_->indexOfTopLevelItem(names_->currentItem());
    if (field < 0) return;
    QString const value = quotedValue(item->text(), fields_[static_cast<size_t>(field)].kind);
    insert(followsAnother() ? QLatin1String(", ") + value : value);
  });
  return content;
}

QWidget* ConditionDialog::buildOperators() {
  auto* const box = new QWidget(this);
  auto* const grid = new QGridLayout(box);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(2);
  int place = 0;
  for (char const* const text : operators) {
    QString const inserted = QLatin1String(text);
    auto* const button = new QPushButton(QString(inserted).remove(cursorMark).trimmed(), box);
    button->setAutoDefault(false);
    button->setMinimumWidth(1);
    connect(button, &QPushButton::clicked, this, [this, inserted] { insert(inserted, true); });
    grid->addWidget(button, place / buttonsInARow, place % buttonsInARow);
    ++place;
  }
  return box;
}

void ConditionDialog::fillFields() {
  QString problem;
  fields_ = SysCarto::fieldsOf(source_, problem);
  for (FieldDescription const& field : fields_) new QTreeWidgetItem(names_, {field.name, fieldKindText(field.kind)});
  names_->resizeColumnToContents(0);
  if (!problem.isEmpty()) test_->say(problem, true);
  if (names_->topLevelItemCount() > 0) names_->setCurrentItem(names_->topLevelItem(0));
}

void ConditionDialog::showValues() {
  slices_.stop();
  scan_.reset();
  values_->clear();
  SysCarto::FeatureScan::Wanted wanted;
  wanted.field = names_->indexOfTopLevelItem(names_->currentItem());
  QString problem;
  if (wanted.field >= 0) scan_ = SysCarto::FeatureScan::open(source_, wanted, problem);
  if (!scan_) return;
  patience_.start();
  slices_.start(0);
}

// The first different ones, as far as a person would look for them, and then in order.
void ConditionDialog::readValues() {
  QSet<QString> known;
  for (int i = 0; i < values_->count(); ++i) known << values_->item(i)->text();
  bool const isMore = scan_ && scan_->advance(sliceMs, [&](qint64, SysCarto::TableRow const& row) {
    QString const value = row.value(0).toString();
    if (row.value(0).isNull() || known.contains(value) || known.size() >= mostValues) return;
    known << value;
    values_->addItem(value);
  });
  if (isMore && known.size() < mostValues && !patience_.hasExpired(patienceForValuesMs)) return;
  slices_.stop();
  scan_.reset();
  QStringList sorted = known.values();
  std::sort(sorted.begin(), sorted.end(), QCollator());
  // Numbers stay before texts, in their own order.
  std::stable_sort(sorted.begin(), sorted.end(), [](QString const& a, QString const& b) {
    bool aIsNumber, bIsNumber;
    double const first = a.toDouble(&aIsNumber), second = b.toDouble(&bIsNumber);
    return aIsNumber && bIsNumber ? first < second : aIsNumber && !bIsNumber;
  });
  int const chosen = values_->currentItem() ? sorted.indexOf(values_->currentItem()->text()) : -1;
  values_->clear();
  values_->addItems(sorted);
  values_->setCurrentRow(chosen);
}

QString ConditionDialog::quotedField(QString const& name) {
  static QRegularExpression const plain(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
  if (plain.match(name).hasMatch() && !isWord(name)) return name;
  return QLatin1Char('"') + QString(name).replace(QLatin1Char('"'), QLatin1String("\\\"")) + QLatin1Char('"');
}

QString ConditionDialog::quotedValue(QString const& value, FieldDescription::Kind kind) {
  bool const isNumber = kind == FieldDescription::Kind::Integer || kind == FieldDescription::Kind::Real;
  if (isNumber) return value;
  return QLatin1Char('\'') + QString(value).replace(QLatin1Char('\''), QLatin1String("''")) + QLatin1Char('\'');
}

// Whether a value of a list in brackets stands before the cursor.
bool ConditionDialog::followsAnother() const {
  static QRegularExpression const openList(
      QStringLiteral("\\(\\s*('[^']*'|-?[0-9.]+)(\\s*,\\s*('[^']*'|-?[0-9.]+))*\\s*$"));
  return openList.match(text_->toPlainText().left(text_->textCursor().selectionStart())).hasMatch();
}

// What is not understood would leave the layer without features.
void ConditionDialog::accept() {
  QString problem;
  bool const isCondition = kind_ == Kind::Condition;
  if (!text().isEmpty() && !fields_.empty() && isCondition) SysCarto::ClassCounts::open(source_, text(), problem);
  if (!text().isEmpty() && !fields_.empty() && !isCondition) SysCarto::sampleResults(source_, text(), 1, problem);
  if (problem.isEmpty()) return QDialog::accept();
  test_->say(problem, true);
  text_->setFocus();
}

// Blanks that there are already are not doubled.
void ConditionDialog::insert(QString const& text, bool isOperator) {
  QTextCursor cursor = text_->textCursor();
  QString put = text;
  int const mark = put.indexOf(cursorMark);
  QString const before = text_->toPlainText().left(cursor.selectionStart());
  bool const isSpaced = before.isEmpty() || before.endsWith(QLatin1Char(' ')) || before.endsWith(QLatin1Char('('));
  bool const losesBlank = isSpaced && put.startsWith(QLatin1Char(' '));
  if (losesBlank) put.remove(0, 1);
  bool const hasMark = isOperator && mark >= 0;
  cursor.insertText(hasMark ? put.remove(put.indexOf(cursorMark), 1) : put);
  if (hasMark) cursor.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, text.size() - mark - 1);
  text_->setTextCursor(cursor);
  text_->setFocus();
}

void ConditionDialog::testExpression() {
  QString problem;
  QStringList results = SysCarto::sampleResults(source_, text(), shownResults, problem);
  for (QString& result : results) result = result.left(charactersOfAResult);
  if (!problem.isEmpty()) return test_->say(problem, true);
  test_->say(results.isEmpty() ? tr("It has no value for the first features.")
                               : tr("Of the first features: %1").arg(results.join(QStringLiteral("; "))),
             false);
}

std::optional<QString> chooseTextOf(SysCarto::MapDocument const& document, SysCarto::LayerRow const& row,
                                    QStringList const& path, QString const& now, QWidget* parent) {
  using Kind = ConditionDialog::Kind;
  QString const field = path.value(path.size() - 1);
  if (field == QLatin1String("coordinateSystem"))
    return SysAdapterUI::SystemChooser::choose(systemChoice(document, row.map.get(), now, true), parent);
  auto const layer = SysUtility::ptr_cast<SysCarto::VectorLayer>(row.layer);
  if (!layer) return std::nullopt;
  SourceSettings source = layer->source();
  if (path == QStringList({QStringLiteral("source"), QStringLiteral("filter")})) source.filter.clear();
  ConditionDialog dialog(source, field == QLatin1String("filter") ? Kind::Condition : Kind::Expression, now, parent);
  return dialog.exec() == QDialog::Accepted ? std::optional<QString>(dialog.text()) : std::nullopt;
}
