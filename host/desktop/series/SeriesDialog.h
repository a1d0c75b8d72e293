#pragma once

#include "SeriesView.h"

#include "host/SysAdapterUI/FieldSource.h"
#include "host/desktop/FieldChanges.h"

#include <QDialog>

class QLabel;
class QListView;

namespace SysAdapterUI {
class PropertySheet;
}

/// The settings of a series, and what pages they make. Each change is one step of the history; a page that is clicked
/// in the list is shown behind. Whose features have pages is chosen with a name for these, where there is none yet.
class SeriesDialog final : public QDialog, private SysAdapterUI::FieldSource {
  Q_OBJECT

public:
  /// Both are borrowed.
  SeriesDialog(DocumentSession& session, SeriesView& series, QWidget* parent);
  ~SeriesDialog() override;

  /// Takes the value that is being edited. Where that is refused, the dialog stays.
  void accept() override;

private:
  QVector<SysUtility::SheetField> fields() override;
  QStringList attributes() const override;
  QStringList namesFor(QStringList const& path) const override;
  bool canChoose(SysUtility::TextKind) const override { return false; }
  QString set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) override;
  QString setFeatures(QStringList const& path, SysUtility::NewValue const& value, QStringList& warnings);
  void askForSource();
  void follow();

  DocumentSession& session_;
  SeriesView& series_;
  FieldChanges changes_;
  SysAdapterUI::PropertySheet* const sheet_;
  QListView* const pages_;
  QLabel* const note_;
};
