#include "ElementClip.h"

#include "DocumentFields.h"
#include "ElementFields.h"

#include "host/SysCarto/elements/ElementHost.h"
#include "host/SysUtility/FileSaver.h"
#include "host/SysUtility/JsonFields.h"
#include "host/SysUtility/JsonFile.h"

#include <QFileInfo>
#include <QJsonDocument>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::Fields;
using SysUtility::ptr_cast;

namespace {

constexpr char const* formatName = "plotvane-elements";
constexpr int version = 1;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(ElementClip)
};

struct Content {
  QList<_ptr_t<Map>> ownMaps;    // of the data frames among the elements
  QList<_ptr_t<Map>> otherMaps;  // elements name them by the numbers that follow those of their own
  _ptr_t<Map> focusMap;
  QList<_ptr_t<Element>> elements;

  void list(Fields& fields, DocumentContext& context) {
    listFormat(fields, {formatName, QT_TRANSLATE_NOOP("Fields", "Elements"), version,
                        Texts::tr("is not “%1”, so these are no elements"),
                        Texts::tr("the elements were copied by a newer version of Plotvane, as version %1")});
    if (!fields.ok()) return;
    int others = otherMaps.size();
    fields.integer({"otherMaps", QT_TRANSLATE_NOOP("Fields", "Other maps"),
                    QT_TRANSLATE_NOOP("Fields", "How many maps more surrounds and overviews follow.")},
                   others, 0, maxMaps, 0);
    fields.list(
        {"maps", QT_TRANSLATE_NOOP("Fields", "Maps"), QT_TRANSLATE_NOOP("Fields", "Those of the data frames."), "map"},
        ownMaps, maxMaps, [&](Fields& own, _ptr_t<Map>& map, int) { listMap(own, map, context); });
    context.maps = ownMaps;
    for (int i = 0; i < others; ++i) {
      context.framedMaps << context.maps.size();  // no data frame comes without its own map
      context.maps << otherMaps.value(i, focusMap);
    }
    listElements(fields,
                 {"elements", QT_TRANSLATE_NOOP("Fields", "Elements"),
                  QT_TRANSLATE_NOOP("Fields", "What lies on the page, the lowest first."), "element"},
                 elements, {context});
  }
};

// Each once: the data frames' own, and what surrounds and overviews follow else.
void listMapsOf(Content& content) {
  for (auto const& element : qAsConst(content.elements))
    if (auto const frame = ptr_cast<MapFrameElement>(element)) content.ownMaps << frame->GetMap();
  for (auto const& element : qAsConst(content.elements))
    for (auto const& map : mapsFollowedBy(*element))
      if (!content.ownMaps.contains(map) && !content.otherMaps.contains(map)) content.otherMaps << map;
}

QString tooLarge(qint64 bytes) {
  constexpr int mebibyte = 1024 * 1024;
  return Texts::tr("The elements take %1 MB, and the clipboard takes %2; copy fewer of them, or link their pictures.")
      .arg(bytes / mebibyte + 1)
      .arg(ElementClip::maxBytes / mebibyte);
}

}  // namespace

ElementClip ElementClip::of(MapDocument const& document, QList<_ptr_t<Element>> const& elements, QString& problem) {
  Content content;
  for (auto const& element : elements) {
    auto const clone = element->Clone();
    ElementHost::setHandle(*clone, 0);  // of no use elsewhere
    content.elements << clone;
  }
  listMapsOf(content);
  DocumentContext context;
  context.folder = QFileInfo(SysUtility::FileSaver::realPath(document.GetPath())).absolutePath();
  context.relativePaths = false;
  SysUtility::JsonWriter writer;
  content.list(writer, context);
  problem = writer.ok() ? QString() : Texts::tr("The elements can't be copied: %1.").arg(writer.error());
  if (!problem.isEmpty()) return {};
  QByteArray const text = SysUtility::jsonText(writer.json());
  if (text.size() <= maxBytes) return {text, content.otherMaps};
  problem = tooLarge(text.size());
  return {};
}

bool ElementClip::isOne(QByteArray const& text) { return text.trimmed().startsWith('{') && text.contains(formatName); }

QList<_ptr_t<Element>> ElementClip::read(ElementClip const& clip, _ptr_t<Map> const& focusMap, QString& problem) {
  if (clip.text.size() > maxBytes) {
    problem = tooLarge(clip.text.size());
    return {};
  }
  QJsonParseError parsing;
  QJsonDocument const json = QJsonDocument::fromJson(clip.text, &parsing);
  Content content;
  content.otherMaps = clip.otherMaps;
  content.focusMap = focusMap;
  DocumentContext context;
  SysUtility::JsonReader reader(json.object());
  if (json.isObject()) content.list(reader, context);
  QString const wrong = json.isObject() ? reader.error() : parsing.errorString();
  if (!wrong.isEmpty()) {
    problem = Texts::tr("The elements on the clipboard can't be read: %1; copy them anew.").arg(wrong);
    return {};
  }
  for (auto const& element : qAsConst(content.elements)) {
    ElementHost::setHandle(*element, 0);
    setLocked(*element, false);
  }
  return content.elements;
}

}  // namespace SysCarto
