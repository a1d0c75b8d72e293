#include "StoredFormat.h"

#include "Console.h"

#include "host/SysCarto/document/DocumentFields.h"
#include "host/SysDisplay/StyleLibrary.h"

#include <QCommandLineParser>

using SysUtility::FieldInfo;
using SysUtility::FieldTree;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(StoredFormat)
};

QVector<FieldInfo> fieldsOfDocument() {
  SysCarto::DocumentContent content;
  SysCarto::DocumentContext context;
  FieldTree tree;
  content.list(tree, context);
  return tree.fields();
}

QVector<FieldInfo> fieldsOfStyle() {
  SysDisplay::StyleLibrary library;
  FieldTree tree;
  library.list(tree);
  return tree.fields();
}

// clang-format off
constexpr char const* untoldOfDocuments[] = {
    "Plotvane refuses some documents that this schema accepts. Not told here: The file is UTF-8 and has at most 256 MB.",
    "A coordinate system is one that PROJ knows, and names no file.",
    "The number of a map is that of one in the list maps; no two data frames show the same one.",
    "A handle is used once on the page, and once on each map; 0 asks for a new one.",
    "In a rectangle xmin ≤ xmax and ymin ≤ ymax, and the bounds of a map have a width and a height.",
    "Lists of coordinates hold x and y of each point, so an even count of numbers.",
    "Of two scale limits that are not 0, minScale is the smaller one.",
    "The minimum of a class lies above that of the class before, and a value is in one class only.",
    "Groups lie at most 16 deep in each other.",
    "The places beside points are upperRight, upperLeft, lowerRight, lowerLeft, right, left, above, below and centre.",
    "The pattern of a scale text holds %1.",
    "The language of a document is a tag of BCP 47.",
    "A series names a layer, or has a source.",
    "A source names a file, unless its data are the globe.",
};
constexpr char const* untoldOfStyles[] = {
    "Plotvane refuses some libraries that this schema accepts. Not told here: The file is UTF-8 and has at most 64 MB.",
};
constexpr char const* untoldOfBoth[] = {
    "The length of a text counts UTF-16 units.",
    "Symbols lie in the layers of symbols at most 3 deep.",
    "A feature of a font is its tag of four letters or digits, alone or with a number as in liga=0; a text has at most 32.",
    "A stop of a gradient does not lie before the last one.",
    "An SVG is well-formed and refers to nothing outside itself.",
    "A field that is not described is reported and ignored.",
};
// clang-format on

template <int count>
QStringList sentences(char const* const (&own)[count]) {
  QStringList all;
  for (char const* sentence : own) all << QString::fromUtf8(sentence);
  for (char const* sentence : untoldOfBoth) all << QString::fromUtf8(sentence);
  return all;
}

}  // namespace

StoredFormat const documentFormat{"document", "A map document of Plotvane (.kdx)",
                                  [] { return sentences(untoldOfDocuments); }, fieldsOfDocument};
StoredFormat const styleFormat{"style", "A style library of Plotvane (.style)",
                               [] { return sentences(untoldOfStyles); }, fieldsOfStyle};

void describeFormatOperand(QCommandLineParser& parser) {
  parser.addPositionalArgument(
      QStringLiteral("FORMAT"),
      Texts::tr("document for .kdx files, which is meant without it, or style for .style files."),
      QStringLiteral("[FORMAT]"));
}

std::optional<StoredFormat> formatOf(QCommandLineParser const& parser, char const* subcommand) {
  QString const name = parser.positionalArguments().value(0, QLatin1String(documentFormat.name));
  for (StoredFormat const& format : {documentFormat, styleFormat})
    if (name == QLatin1String(format.name)) return format;
  Console::complain(QStringLiteral("%1: ").arg(QLatin1String(subcommand)) +
                    Texts::tr("the format is document or style, not \"%1\".").arg(name));
  return std::nullopt;
}
