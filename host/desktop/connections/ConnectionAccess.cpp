#include "ConnectionAccess.h"

#include "host/SysCarto/layers/Connections.h"
#include "host/SysCarto/layers/WatchedWork.h"
#include "host/desktop/layers/ReadingProgress.h"

#include <QCoreApplication>
#include <QInputDialog>

using SysCarto::Connections;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ConnectionAccess)
};

}  // namespace

std::optional<SysCarto::DataFile> ConnectionAccess::describe(QString const& connection, QWidget& parent) {
  while (true) {
    auto const file = [&] {
      ReadingProgress progress(parent);
      return SysCarto::watched([origin = SysCarto::originOf(connection)] { return SysCarto::describeFile(origin); },
                               progress.watch());
    }();
    if (!file || file->error.isEmpty() || !Connections::wantsPassword(connection)) return file;
    if (!askForPassword(connection, parent)) return std::nullopt;
  }
}

bool ConnectionAccess::askForPassword(QString const& connection, QWidget& parent) {
  auto const known = Connections::find(connection);
  QString const user = known && !known->user.isEmpty() ? known->user : Texts::tr("your user");
  QInputDialog dialog(&parent);
  dialog.setWindowTitle(Texts::tr("Password"));
  QString const question =
      Texts::tr("Password of %1 for the connection “%2”; it is kept until the program ends:").arg(user, connection);
  bool const wasWrong = Connections::wantsPassword(connection) && !Connections::password(connection).isEmpty();
  dialog.setLabelText(wasWrong ? Texts::tr("The password was not right.") + QLatin1Char('\n') + question : question);
  dialog.setTextEchoMode(QLineEdit::Password);
  if (dialog.exec() != QDialog::Accepted) return false;
  Connections::keepPassword(connection, dialog.textValue());
  return true;
}
