#pragma once

#include "host/SysAdapterUI/FieldSource.h"
#include "host/SysCarto/maps/LayerTree.h"
#include "host/desktop/FieldChanges.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <vector>

namespace SysAdapterUI {
class EntryTable;
class PropertySheet;
}  // namespace SysAdapterUI
namespace SysCarto {
class ClassCounts;
struct SourceSettings;
class VectorLayer;
}  // namespace SysCarto
class DocumentSession;
class FileFacts;
class OpacitySlider;
class QLabel;
class QTabWidget;
class QVBoxLayout;
class TabFields;
class TestBar;

/// All about a layer, in tabs: its fields, by `SheetTab`, and what its file holds. It stays open beside the window;
/// each change is a step of the history.
class LayerSheet final : public QDialog, private SysAdapterUI::FieldSource {
  Q_OBJECT

public:
  /// `session` is borrowed.
  LayerSheet(DocumentSession& session, QWidget* parent);
  ~LayerSheet() override;

  /// An empty name leaves the tab that is shown.
  void showLayer(SysCarto::LayerRow const& row, QString const& tab = QString());

  SysCarto::LayerRow const& layer() const { return row_; }

  bool isEditing() const;

  /// Takes the value that is being edited.
  void finishTyping();

  void done(int result) override;

signals:
  /// A value begins to be edited.
  void editing();

private:
  struct Tab {
    std::unique_ptr<TabFields> fields;
    SysAdapterUI::PropertySheet* sheet;
    SysAdapterUI::EntryTable* table;
  };

  QVector<SysUtility::SheetField> fields() override;
  QStringList attributes() const override;
  QStringList namesFor(QStringList const& path) const override;
  bool canChoose(SysUtility::TextKind kind) const override;
  std::optional<QString> choose(QStringList const& path, QString const& now, QWidget* parent) override;
  QString set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) override;

  void addTab(int tab);
  static void begin(SysAdapterUI::PropertySheet& sheet);
  void addOpacity(QVBoxLayout& page);
  void addFilterTest(QVBoxLayout& page);
  void addJoinTest(QVBoxLayout& page);
  void addSystem(QVBoxLayout& page);
  void addClasses(QVBoxLayout& page);
  void follow();
  void forgetCounts();
  void refreshTab();
  void chooseFor(QStringList const& path, QString const& now);
  void give(QStringList const& path, QJsonValue const& value, QString const& joining);
  void classify();
  void join(int row);
  static QString telling(SysCarto::ClassCounts const& counts, SysAdapterUI::EntryTable& table);
  SysUtility::_ptr_t<SysCarto::VectorLayer> vector() const;
  SysCarto::SourceSettings source() const;
  void showFitting();
  QString folder() const;
  void tell(QStringList const& sentences, bool isProblem);

  DocumentSession& session_;
  FieldChanges changes_;
  SysCarto::LayerRow row_;
  SysCarto::Editable::List things_;
  std::vector<Tab> tabs_;
  QTabWidget* const pages_;
  FileFacts* const facts_;
  OpacitySlider* opacity_ = nullptr;
  QLabel* fileSystem_ = nullptr;
  std::vector<TestBar*> tests_;
  std::vector<QWidget*> ofFeatures_;  // hidden for other layers, as are the tests
  QJsonObject tested_;                // the layer as it was when something was counted
  QLabel* const told_;
  QTimer soon_;
};
