#include "RecoveryDialog.h"

#include "RecoveryCopy.h"

#include "host/desktop/DocumentSession.h"
#include "host/desktop/NoticeBar.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QSize pictureSize(160, 120);
constexpr QSize dialogSize(560, 420);

class RecoveryDialog final : public QDialog {
  Q_DECLARE_TR_FUNCTIONS(RecoveryDialog)

public:
  RecoveryDialog(DocumentSession& session, RecoveryCopy& own, std::vector<LostDocument> lost, QWidget* parent);

  /// Recovers what is chosen; the dialog stays where that can't be done.
  void accept() override;

private:
  void addRow(LostDocument const& document);
  void discard();
  QMessageBox::StandardButton ask(QMessageBox::Icon icon, QString const& text, QMessageBox::StandardButtons buttons);

  DocumentSession& session_;
  RecoveryCopy& own_;
  std::vector<LostDocument> lost_;
  QListWidget* const rows_;
  QPushButton *recover_ = nullptr, *discard_ = nullptr;
};

RecoveryDialog::RecoveryDialog(DocumentSession& session, RecoveryCopy& own, std::vector<LostDocument> lost,
                               QWidget* parent)
    : QDialog(parent), session_(session), own_(own), lost_(std::move(lost)), rows_(new QListWidget(this)) {
  setWindowTitle(tr("Recover Documents"));
  resize(dialogSize);
  auto* const box = new QVBoxLayout(this);
  auto* const text = new QLabel(
      tr("Plotvane ended before these changes were saved. Recover opens the document with them; its file stays as it "
         "is until you save."),
      this);
  text->setWordWrap(true);
  box->addWidget(text);
  rows_->setIconSize(pictureSize);
  rows_->setObjectName(QStringLiteral("listWidget_LostDocuments"));
  box->addWidget(rows_, 1);
  auto* const buttons = new QDialogButtonBox(this);
  recover_ = buttons->addButton(tr("Recover"), QDialogButtonBox::AcceptRole);
  discard_ = buttons->addButton(tr("Discard"), QDialogButtonBox::DestructiveRole);
  buttons->addButton(tr("Keep for Later"), QDialogButtonBox::RejectRole);
  recover_->setDefault(true);
  box->addWidget(buttons);
  for (LostDocument const& document : lost_) addRow(document);
  rows_->setCurrentRow(0);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] { accept(); });
  connect(discard_, &QPushButton::clicked, this, [this] { discard(); });
  connect(rows_, &QListWidget::itemActivated, this, [this] { accept(); });
}

void RecoveryDialog::addRow(LostDocument const& document) {
  QString const name = document.file().isEmpty() ? tr("Untitled") : QFileInfo(document.file()).fileName();
  QString const folder =
      document.file().isEmpty() ? tr("never saved") : QDir::toNativeSeparators(QFileInfo(document.file()).path());
  QString const time = QLocale().toString(document.time(), QLocale::ShortFormat);
  auto* const row = new QListWidgetItem(QStringLiteral("%1\n%2\n%3").arg(name, folder, time), rows_);
  QImage const picture = document.picture();
  QIcon icon;
  for (auto const mode : {QIcon::Normal, QIcon::Selected}) icon.addPixmap(QPixmap::fromImage(picture), mode);
  if (!picture.isNull()) row->setIcon(icon);
}

void RecoveryDialog::accept() {
  int const row = rows_->currentRow();
  if (row < 0) return;
  auto const& document = lost_[static_cast<std::size_t>(row)];
  if (!document.recover(session_)) {
    ask(QMessageBox::Warning,
        tr("%1\nThe copy is kept in %2.")
            .arg(DocumentSession::takeProblem(), QDir::toNativeSeparators(document.copy())),
        QMessageBox::Ok);
    return;
  }
  if (own_.keep()) document.discard();
  QDialog::accept();
}

// Plain text: a file may be called <b>.
QMessageBox::StandardButton RecoveryDialog::ask(QMessageBox::Icon icon, QString const& text,
                                                QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, tr("Plotvane"), text, buttons, this);
  box.setTextFormat(Qt::PlainText);
  box.setDefaultButton(buttons & QMessageBox::Cancel ? QMessageBox::Cancel : QMessageBox::Ok);
  return static_cast<QMessageBox::StandardButton>(box.exec());
}

// What is discarded here has no other copy.
void RecoveryDialog::discard() {
  int const row = rows_->currentRow();
  if (row < 0) return;
  auto const answer =
      ask(QMessageBox::Question,
          tr("Discard the changes of %1?").arg(rows_->item(row)->text().section(QLatin1Char('\n'), 0, 0)),
          QMessageBox::Discard | QMessageBox::Cancel);
  if (answer != QMessageBox::Discard) return;
  lost_[static_cast<std::size_t>(row)].discard();
  lost_.erase(lost_.begin() + row);
  delete rows_->takeItem(row);
  if (lost_.empty()) reject();
}

}  // namespace

bool offerRecovery(DocumentSession& session, RecoveryCopy& own, QString const& wanted, NoticeBar& notice) {
  auto lost = LostDocument::all();
  if (lost.empty()) return false;
  RecoveryDialog dialog(session, own, std::move(lost), notice.window());
  if (dialog.exec() != QDialog::Accepted) return false;
  if (!wanted.isEmpty() && QFileInfo(wanted) != QFileInfo(session.path()))
    notice.tell(RecoveryDialog::tr("%1 was not opened, since a document was recovered. Save that, then open it.")
                    .arg(QDir::toNativeSeparators(wanted)),
                false);
  return true;
}
