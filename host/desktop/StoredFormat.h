#pragma once

#include "host/SysUtility/FieldTree.h"

#include <QStringList>

#include <optional>

class QCommandLineParser;

/// A format of files that a person may write by hand or with another program.
struct StoredFormat {
  char const* name;         ///< "document"
  char const* title;        ///< English, as all of its texts
  QStringList (*untold)();  ///< sentences: what a reader refuses and no description of single fields can tell
  QVector<SysUtility::FieldInfo> (*fields)();
};

extern StoredFormat const documentFormat, styleFormat;

/// The format that the operand of a command line names, that of documents without one. Nothing, and a word on standard
/// error, where it names none.
std::optional<StoredFormat> formatOf(QCommandLineParser const& parser, char const* subcommand);
void describeFormatOperand(QCommandLineParser& parser);
