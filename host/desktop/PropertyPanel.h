#pragma once

#include "DocumentSession.h"
#include "FieldChanges.h"

#include "host/SysAdapterUI/PropertySheet.h"
#include "host/SysCarto/document/Editable.h"
#include "host/SysCarto/maps/LayerTree.h"

#include <QDockWidget>

#include <optional>

/// The panel with the fields of what is selected: elements, the maps, layers and groups of layers that are chosen in
/// the contents, or else the page.
class PropertyPanel final : public QDockWidget, private SysAdapterUI::FieldSource {
  Q_OBJECT

public:
  /// `session` is borrowed.
  PropertyPanel(DocumentSession& session, QWidget* parent);
  ~PropertyPanel() override;

  /// Shows what is selected now, with its values as they are. Cheap where the panel is hidden.
  void follow();

  bool isEditing() const { return sheet_->isEditing(); }

  /// Takes the value that is being edited.
  void finish() { sheet_->finish(); }

  /// Ends what a row of the contents has begun.
  void showSelection();

  /// Rows of the contents are chosen. `showSelection` or another selection ends that.
  void showRows(QVector<SysCarto::LayerRow> const& rows);

  /// The layer that is chosen alone; null for none.
  SysCarto::Editable::Pointer layer() const {
    auto const row = rows_.size() == 1 ? rows_.first() : SysCarto::LayerRow();
    return row.layer ? SysCarto::Editable::layer(row.map, row.layer) : nullptr;
  }

signals:
  /// A value begins to be edited: there is something that could be saved.
  void editing();

  /// What else is to be said of a change.
  void told(QString const& sentence);

protected:
  void showEvent(QShowEvent* event) override;

private:
  QVector<SysUtility::SheetField> fields() override;
  QStringList attributes() const override {
    return things_.size() == 1 ? things_.first()->attributes() : QStringList();
  }
  QString set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) override;
  bool canChoose(SysUtility::TextKind kind) const override;
  std::optional<QString> choose(QStringList const& path, QString const& now, QWidget* parent) override;
  SysCarto::Editable::List chosen() const;
  QString titleOf(SysCarto::Editable::List const& things) const;
  QList<SysCarto::ElementHandle> selection() const;
  void showAnew();
  void chooseSymbol(QModelIndex const& index);

  struct Shown {
    QVector<SysCarto::LayerRow> rows;
    QList<SysCarto::ElementHandle> selected;
    bool operator==(Shown const& other) const { return rows == other.rows && selected == other.selected; }
  };

  // When something may have changed.
  struct Moment {
    int step;
    quint64 change;
    bool operator==(Moment const& other) const { return step == other.step && change == other.change; }
  };

  DocumentSession& session_;
  FieldChanges changes_;
  SysAdapterUI::PropertySheet* const sheet_;
  SysCarto::Editable::List things_;
  QList<SysCarto::ElementHandle> selected_;
  QVector<SysCarto::LayerRow> rows_;  // chosen in the contents; none where the page counts
  std::optional<Shown> shown_;        // in the sheet
  Moment moment_{-1, 0};
};
