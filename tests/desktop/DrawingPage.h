#pragma once

#include "desktop/WorkbenchPage.h"

#include "host/SysCarto/document/Editable.h"

/// A page with the sentences that its commands tell.
struct DrawingPage : WorkbenchPage {
  DrawingPage() {
    QObject::connect(&bench.commands(), &CommandSet::failed, [this](QString const& text) { problem = text; });
  }
  QString problem;
};

/// As a person sets it in the panel.
inline void setField(WorkbenchPage& page, QString const& what, QStringList const& field, QJsonValue const& value) {
  auto const& document = page.bench.session().document();
  QStringList warnings;
  QCOMPARE(SysCarto::Editable::set(
               document, SysCarto::Editable::named(document, what), field, [&](QJsonValue const&) { return value; },
               warnings),
           QString());
}
