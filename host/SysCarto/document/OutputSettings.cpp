#include "OutputSettings.h"

#include <SysCarto/Page.h>

namespace SysCarto {

using SysUtility::Choice;
using SysUtility::Field;
using SysUtility::Fields;
using SysUtility::Unit;

namespace {

// The forms that are listed; their texts are kept beside them.
struct Papers {
  Papers() {
    FormInfo info;
    for (PageFormID form = 0; Paper::GetFormInfo(form, info); ++form) keys << info.key.toUtf8();
    choices << Choice{PrintChoices::paperOfThePage, "page", QT_TRANSLATE_NOOP("Fields", "As the page")};
    for (int form = 0; form < keys.size(); ++form)
      if (form != customPageForm) choices << Choice{form, keys[form].constData(), keys[form].constData()};
  }
  QVector<QByteArray> keys;
  QVector<Choice> choices;
};

constexpr Choice sizes[] = {
    {PrintChoices::Size::Real, "real", QT_TRANSLATE_NOOP("Fields", "Real size, on several sheets if need be")},
    {PrintChoices::Size::Fitted, "fitted", QT_TRANSLATE_NOOP("Fields", "Fitted to one sheet")},
};

// One of the parts of the choices, not written where it is as it is without being chosen.
template <class Settings, class Choices>
void listPart(Fields& fields, Field const& field, Choices& choices) {
  Settings part{choices};
  bool const isThere = fields.optionalObject(field, !(choices == Choices()), [&](Fields& own) { part.list(own); });
  if (fields.isReading()) choices = isThere ? part.choices : Choices();
}

}  // namespace

QStringList ExportSettings::ofPdf() {
  return {QStringLiteral("bleed"), QStringLiteral("cropMarks"), QStringLiteral("layers")};
}

void ExportSettings::list(Fields& fields) {
  ExportChoices const usual;
  fields.integer(
      {"dpi", QT_TRANSLATE_NOOP("Fields", "Resolution (DPI)"),
       QT_TRANSLATE_NOOP("Fields", "Pixels per inch of paper: of images, and of pictures in a file of shapes.")},
      choices.dpi, 1, ExportChoices::maxDpi, usual.dpi);
  fields.flag({"textAsShapes", QT_TRANSLATE_NOOP("Fields", "Texts as shapes"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Whether letters are drawn as outlines. They look the same everywhere, and "
                                 "can't be searched or copied.")},
              choices.textAsShapes, usual.textAsShapes);
  fields.number({"bleed", QT_TRANSLATE_NOOP("Fields", "Bleed (mm)"),
                 QT_TRANSLATE_NOOP("Fields",
                                   "How many millimetres the background and what lies over the page's edges is "
                                   "drawn beyond them in a PDF, so that nothing is left white where paper is cut.")},
                choices.bleedMm, {0, ExportChoices::maxBleedMm}, usual.bleedMm);
  fields.flag({"cropMarks", QT_TRANSLATE_NOOP("Fields", "Crop marks"),
               QT_TRANSLATE_NOOP("Fields", "Whether a PDF has marks where the paper is to be cut.")},
              choices.cropMarks, usual.cropMarks);
  fields.flag({"layers", QT_TRANSLATE_NOOP("Fields", "Layers can be hidden"),
               QT_TRANSLATE_NOOP("Fields", "Whether who reads the file can hide and show the maps' layers.")},
              choices.layers, usual.layers);
  fields.flag({"open", QT_TRANSLATE_NOOP("Fields", "Open afterwards"),
               QT_TRANSLATE_NOOP("Fields", "Whether the window opens the file once it is written.")},
              choices.isOpened, usual.isOpened);
}

void PrintSettings::list(Fields& fields) {
  static Papers const papers;
  PrintChoices const usual;
  fields.choice<int>({"paper", QT_TRANSLATE_NOOP("Fields", "Paper"),
                      QT_TRANSLATE_NOOP("Fields", "The paper of the printer: that of the page, or another one.")},
                     choices.paper, papers.choices, usual.paper);
  fields.choice<PrintChoices::Size>(
      {"size", QT_TRANSLATE_NOOP("Fields", "Size"),
       QT_TRANSLATE_NOOP("Fields",
                         "Whether the page is printed as large as it is, on several sheets to be "
                         "glued where it is larger than the paper, or made to fit on one.")},
      choices.size, sizes, usual.size);
  fields.number({"overlap", QT_TRANSLATE_NOOP("Fields", "Overlap"),
                 QT_TRANSLATE_NOOP("Fields", "How far neighbouring sheets show the same, to be glued there.")},
                choices.overlapCm, {0, PrintChoices::maxOverlapCm, Unit::Centimetre}, usual.overlapCm);
  fields.flag({"marks", QT_TRANSLATE_NOOP("Fields", "Marks to cut and glue"),
               QT_TRANSLATE_NOOP("Fields",
                                 "Whether several sheets have marks at which they are cut, and lines to which "
                                 "the next one is glued.")},
              choices.marks, usual.marks);
  fields.flag({"numbers", QT_TRANSLATE_NOOP("Fields", "Numbers of sheets"),
               QT_TRANSLATE_NOOP("Fields", "Whether several sheets say in which row and column they belong.")},
              choices.numbers, usual.numbers);
}

void OutputSettings::list(Fields& fields) {
  listPart<ExportSettings>(fields,
                           {"export", QT_TRANSLATE_NOOP("Fields", "Export"),
                            QT_TRANSLATE_NOOP("Fields", "What was chosen for files made of the page.")},
                           choices.file);
  listPart<PrintSettings>(fields,
                          {"print", QT_TRANSLATE_NOOP("Fields", "Print"),
                           QT_TRANSLATE_NOOP("Fields", "What was chosen for the page on paper.")},
                          choices.paper);
}

}  // namespace SysCarto
