#pragma once

#include "Elements.h"
#include "Files.h"

#include <SysCarto/MapDocument.h>

/// What a run of `plotvane` came to.
struct Outcome {
  int status = -1;
  QString out;
  QString err;
};

/// Of the environment; a null value takes one away.
using Variables = QMap<QString, QString>;

/// A process of `plotvane` that has not been started. Its environment says that there is a display, which there isn't.
inline void prepare(QProcess& process, QStringList const& arguments, QString const& folder,
                    Variables const& variables = {}) {
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DISPLAY", ":59999");
  environment.insert("QT_QPA_PLATFORM", "xcb");
  for (auto it = variables.begin(); it != variables.end(); ++it) {
    environment.insert(it.key(), it.value());
    if (it.value().isNull()) environment.remove(it.key());
  }
  process.setProcessEnvironment(environment);
  process.setWorkingDirectory(folder);
  process.setProgram(QStringLiteral(PLOTVANE_BINARY_DIR "/bin/plotvane"));
  process.setArguments(arguments);
}

inline Outcome finish(QProcess& process) {
  if (!process.waitForFinished(300000) || process.exitStatus() != QProcess::NormalExit) return {};
  return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
          QString::fromUtf8(process.readAllStandardError())};
}

inline Outcome run(QStringList const& arguments, QString const& folder, Variables const& variables = {}) {
  QProcess process;
  prepare(process, arguments, folder, variables);
  process.start();
  return finish(process);
}

/// A folder with `page.kdx`: 8 × 6 cm with a data frame named "World", its map empty.
class DocumentFolder {
public:
  DocumentFolder() { writeDocument("page.kdx", 8.0, 6.0); }

  void writeDocument(QString const& name, double widthCm, double heightCm) const {
    SysCarto::MapDocument document;
    document.New(QString());
    auto const layout = document.GetPageLayout();
    SysCarto::Paper::SetCustomSize(widthCm, heightCm);
    layout->GetPage()->SetFormID(SysCarto::customPageForm);
    auto const frame = in(frameNamed("Countries"), 1.0, 1.0, 7.0, 5.0);
    frame->SetName("World");
    layout->GetGraphicsContainer()->AddElement(frame);
    if (!document.SaveAs(path(name), true, false)) qFatal("%s", qPrintable(document.GetErrors().join(' ')));
  }

  QString path(QString const& name) const { return folder_.filePath(name); }
  QString path() const { return folder_.path(); }

  /// A copy of the document with other values at its top; a null takes one away.
  void writeVariant(QString const& name, QJsonObject const& values) const {
    QJsonObject json = QJsonDocument::fromJson(contentOf(path("page.kdx"))).object();
    for (auto it = values.begin(); it != values.end(); ++it) {
      json[it.key()] = it.value();
      if (it.value().isNull()) json.remove(it.key());
    }
    put(path(name), QJsonDocument(json).toJson());
  }

private:
  QTemporaryDir folder_;
};
