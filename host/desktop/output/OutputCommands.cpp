#include "OutputCommands.h"

#include "host/SysCarto/document/DocumentSettings.h"
#include "host/SysCarto/document/Editable.h"
#include "host/desktop/HostCommands.h"
#include "host/desktop/SettingsDialog.h"
#include "host/desktop/SettingsSource.h"
#include "host/desktop/Workbench.h"

#include <memory>

using SysCarto::DocumentSettings;
using SysCarto::Editable;

void OutputCommands::addTo(HostCommands& host) {
  auto const hasLayout = [this] { return static_cast<bool>(bench_.views().GetPageLayout()); };
  auto const add = [&](char const* identifier, QString (OutputCommands::*run)()) {
    auto const problem = std::make_shared<QString>();
    host.add(QLatin1String(identifier),
             {[this, run, problem] { *problem = (this->*run)(); }, hasLayout, {}, [problem] { return *problem; }});
  };
  add("Host_DocumentProperties", &OutputCommands::showProperties);
}

QString OutputCommands::showProperties() {
  auto const& document = bench_.session().document();
  SettingsSource source(DocumentSettings::of(*document.GetPageLayout()).information);
  if (SettingsDialog(tr("Document Properties"), source, {}, &window_).exec() != QDialog::Accepted) return QString();
  QStringList warnings;
  QString const problem = Editable::set(
      document, {Editable::document(document)}, {QStringLiteral("information")},
      [&](QJsonValue const&) { return QJsonValue(source.json()); }, warnings);
  bench_.views().redraw();  // a text of the page may hold the title
  return problem;
}
