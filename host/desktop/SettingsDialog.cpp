#include "SettingsDialog.h"

#include "host/SysAdapterUI/PropertySheet.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

using SysAdapterUI::PropertyModel;

namespace {

constexpr QSize firstSize(560, 440);
constexpr int captionPx = 220;

}  // namespace

SettingsDialog::SettingsDialog(QString const& title, SysAdapterUI::FieldSource& source, QString const& ok,
                               QWidget* parent)
    : QDialog(parent),
      column_(new QVBoxLayout(this)),
      sheet_(new SysAdapterUI::PropertySheet(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
  setWindowTitle(title);
  resize(firstSize);
  sheet_->makePlain();
  sheet_->view().header()->resizeSection(PropertyModel::CaptionColumn, captionPx);
  sheet_->show(&source);
  sheet_->view().expandAll();
  if (!ok.isEmpty()) buttons_->button(QDialogButtonBox::Ok)->setText(ok);
  column_->addWidget(sheet_, 1);
  column_->addWidget(buttons_);
  connect(buttons_, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
  connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

SettingsDialog::~SettingsDialog() { sheet_->show(nullptr); }

void SettingsDialog::accept() {
  sheet_->finish();
  auto const& model = sheet_->model();
  for (int row = 0; row < model.rowCount(); ++row) {
    QModelIndex const index = model.index(row, PropertyModel::ValueColumn);
    if (!model.data(index, PropertyModel::ProblemRole).toString().isEmpty()) return;
  }
  QDialog::accept();
}
