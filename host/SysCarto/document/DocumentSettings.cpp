#include "DocumentSettings.h"

#include "host/SysCarto/layout/PageLayoutHost.h"

#include <QRegularExpression>

namespace SysCarto {

using SysUtility::Fields;
using SysUtility::TextKind;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(DocumentSettings)
};

// A language, then script, region and variants.
bool isLanguageTag(QString const& text) {
  static QRegularExpression const tag(QStringLiteral("\\A[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*\\z"));
  return tag.match(text).hasMatch();
}

}  // namespace

void InformationSettings::list(Fields& fields) {
  DocumentInformation& own = information;
  QString const none = QStringLiteral("");
  fields.text({"title", QT_TRANSLATE_NOOP("Fields", "Title"),
               QT_TRANSLATE_NOOP("Fields",
                                 "What the document is called: [title] in a text of the page, and the title "
                                 "of files made of it. Without one it is the name of its file.")},
              own.title, TextKind::Line, none);
  fields.text({"author", QT_TRANSLATE_NOOP("Fields", "Author"),
               QT_TRANSLATE_NOOP("Fields", "Who made it: [author] in a text of the page.")},
              own.author, TextKind::Line, none);
  fields.text({"subject", QT_TRANSLATE_NOOP("Fields", "Subject"), QT_TRANSLATE_NOOP("Fields", "What it is about.")},
              own.subject, TextKind::Lines, none);
  fields.texts({"keywords", QT_TRANSLATE_NOOP("Fields", "Keywords"),
                QT_TRANSLATE_NOOP("Fields", "Words by which it is to be found.")},
               own.keywords);
  fields.text({"language", QT_TRANSLATE_NOOP("Fields", "Language"),
               QT_TRANSLATE_NOOP("Fields",
                                 "The language of its texts, as in “en”, “de-CH” or “zh-Hans”; programs that "
                                 "read a page aloud go by it.")},
              own.language, TextKind::Line, none);
  if (fields.isReading() && fields.ok() && !own.language.isEmpty() && !isLanguageTag(own.language))
    fields.fail("language", Texts::tr("is no tag of a language; write one as in “en” or “de-CH”"));
}

DocumentSettings DocumentSettings::of(PageLayout const& layout) {
  return {{PageLayoutHost::information(layout)}, {PageLayoutHost::output(layout)}};
}

void DocumentSettings::list(Fields& fields) {
  bool const isThere = fields.optionalObject(
      {"information", QT_TRANSLATE_NOOP("Fields", "Information"),
       QT_TRANSLATE_NOOP("Fields", "What the document says about itself, and files made of it say, too.")},
      information.information != DocumentInformation(), [&](Fields& own) { information.list(own); });
  if (fields.isReading() && !isThere) information = {};
  bool const hasOutput =
      fields.optionalObject({"output", QT_TRANSLATE_NOOP("Fields", "Output"),
                             QT_TRANSLATE_NOOP("Fields", "What was chosen for files made of the page, and for paper.")},
                            !(output.choices == OutputChoices()), [&](Fields& own) { output.list(own); });
  if (fields.isReading() && !hasOutput) output = {};
}

void DocumentSettings::applyTo(PageLayout& layout) const {
  PageLayoutHost::setInformation(layout, information.information);
  PageLayoutHost::setOutput(layout, output.choices);
}

}  // namespace SysCarto
