#pragma once

#include "host/SysCarto/layers/Classify.h"
#include "host/SysCarto/maps/VectorLayer.h"

#include <QDialog>

class BreakHistogram;
class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;
class QSpinBox;
class QTableWidget;
class QTableWidgetItem;

/// Makes classes of a layer by the values of a field, and shows them while it is decided how. It changes nothing by
/// itself: `renderer` is what was wanted.
class ClassifyDialog final : public QDialog {
  Q_OBJECT

public:
  explicit ClassifyDialog(SysUtility::_ptr_t<SysCarto::VectorLayer> layer, QWidget* parent = nullptr);

  SysCarto::RendererSettings const& renderer() const { return classes_.renderer; }

private:
  void build();
  SysCarto::ClassifySettings::Method methodOf(SysCarto::RendererSettings const& now) const;
  void beginWith(SysCarto::RendererSettings const& now);
  void fillRamps();
  void readField();
  void remake();
  void showClasses();
  void showRow(int row);
  void moveBound(int bound, double value);
  void takeCell(QTableWidgetItem* item);
  SysCarto::ClassifySettings wanted() const;
  bool isUnique() const;

  SysUtility::_ptr_t<SysCarto::VectorLayer> const layer_;
  SysCarto::FieldValues values_;
  SysCarto::Classes classes_;
  std::vector<double> breaks_;  // of one's own
  bool isShowing_ = false;

  QComboBox* field_;
  QComboBox* method_;
  QSpinBox* count_;
  QComboBox* look_;
  QComboBox* ramp_;
  QCheckBox* reversed_;
  QCheckBox* sorted_;
  QDoubleSpinBox* from_;
  QDoubleSpinBox* to_;
  BreakHistogram* histogram_;
  QTableWidget* table_;
  QLabel* told_;
  QDialogButtonBox* buttons_;
};
