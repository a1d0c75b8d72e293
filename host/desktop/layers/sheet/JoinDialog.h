#pragma once

#include "JoinKeys.h"

#include <QDialog>
#include <QStringList>

#include <optional>

class QComboBox;
class QDialogButtonBox;
class QLineEdit;
class QTableWidget;
class TestBar;

/// Joins a table to a layer: its file, and the fields by which rows find their features. What finds no partner is
/// counted while it is chosen.
class JoinDialog final : public QDialog {
  Q_OBJECT

public:
  /// `features` is the source of the layer with the tables that are joined before this one; `folder` is where files are
  /// looked for first.
  JoinDialog(SysCarto::SourceSettings features, SysCarto::TableJoin const& join, QString const& folder,
             QWidget* parent);
  ~JoinDialog() override;

  SysCarto::TableJoin join() const;

private:
  void build();
  void chooseFile();
  void takeFile();
  void takeLayer();
  void test();
  void say(QString const& problem);

  SysCarto::SourceSettings const features_;
  QString const folder_;
  TableSample const sample_;  // of the features
  QStringList ownFields_;     // without those of tables
  QString path_;              // of the table, absolute
  QLineEdit* file_ = nullptr;
  QComboBox* layer_ = nullptr;
  QComboBox* key_ = nullptr;
  QComboBox* tableKey_ = nullptr;
  QLineEdit* prefix_ = nullptr;
  QTableWidget* rows_ = nullptr;
  TestBar* test_ = nullptr;
  QDialogButtonBox* buttons_ = nullptr;
  bool isSettling_ = false;
};

/// Lets a person choose a file of a table, and then how it is joined. Empty where that was given up.
std::optional<SysCarto::TableJoin> askForJoin(SysCarto::SourceSettings const& features, QString const& folder,
                                              QWidget* parent);
