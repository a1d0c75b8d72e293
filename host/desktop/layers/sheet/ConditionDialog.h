#pragma once

#include "host/SysCarto/layers/DataCatalogue.h"
#include "host/SysCarto/maps/LayerTree.h"

#include <SysCarto/MapDocument.h>

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>
#include <optional>

class QListWidget;
class QPlainTextEdit;
class QTreeWidget;
class TestBar;

namespace SysCarto {
class FeatureScan;
}

/// Helps to write a condition, or an expression, on the attributes of a layer: fields, their values and operators are
/// put in by a double click or Enter, and a test tells how many features pass, or what comes of the first ones.
class ConditionDialog final : public QDialog {
  Q_OBJECT

public:
  enum class Kind { Condition, Expression };

  /// The filter of the source counts for expressions and for conditions of rules alone; `source` comes without it where
  /// it is the one that is written.
  ConditionDialog(SysCarto::SourceSettings source, Kind kind, QString const& text, QWidget* parent);
  ~ConditionDialog() override;

  QString text() const;

  // As conditions have them: the name of a field, and a value of it.

  static QString quotedField(QString const& name);
  static QString quotedValue(QString const& value, SysCarto::FieldDescription::Kind kind);

  /// Keeps open, and says why, where what is written is not understood.
  void accept() override;

private:
  bool followsAnother() const;
  QWidget* build();
  QWidget* buildOperators();
  void fillFields();
  void showValues();
  void readValues();
  void insert(QString const& text, bool isOperator = false);
  void testExpression();

  SysCarto::SourceSettings const source_;
  Kind const kind_;
  std::vector<SysCarto::FieldDescription> fields_;
  QTreeWidget* names_ = nullptr;
  QListWidget* values_ = nullptr;
  QPlainTextEdit* text_ = nullptr;
  TestBar* test_ = nullptr;
  QTimer slices_;
  QElapsedTimer patience_;
  std::unique_ptr<SysCarto::FeatureScan> scan_;  // for values
};

/// Lets a person choose or write the text of a layer's field: a coordinate system, a condition or an expression. Empty
/// where that was given up.
std::optional<QString> chooseTextOf(SysCarto::MapDocument const& document, SysCarto::LayerRow const& layer,
                                    QStringList const& path, QString const& now, QWidget* parent);

/// What is said of a test of a condition.
QString passingText(qint64 passing, qint64 features);

/// The name of a kind of field for people.
QString fieldKindText(SysCarto::FieldDescription::Kind kind);
