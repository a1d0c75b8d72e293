#pragma once

#include "ExportOptions.h"

#include <QCoreApplication>
#include <QCommandLineOption>

class QCommandLineParser;
struct ImageFormat;

/// The options of a command line that say how a page becomes a file.
class ExportArguments {
  Q_DECLARE_TR_FUNCTIONS(ExportArguments)

public:
  ExportArguments();

  QList<QCommandLineOption> options() const;

  /// Takes what was given for a file of that name. A sentence that says what is wrong, or an empty text.
  QString read(QCommandLineParser const& parser, QString const& file);

  ImageFormat const& format() const { return *format_; }
  ExportOptions const& chosen() const { return chosen_; }

private:
  QString readNumber(QCommandLineParser const& parser, QCommandLineOption const& option, int most, int& number) const;
  QString checkForFormat(QCommandLineParser const& parser) const;

  QCommandLineOption formatName_, dpi_, text_, bleed_, cropMarks_, outputIntent_, width_, compress_, quality_,
      transparent_, crop_, georeference_;
  ImageFormat const* format_ = nullptr;
  ExportOptions chosen_;
};
