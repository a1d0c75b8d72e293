#include "Editable.h"

#include "DocumentFields.h"
#include "DocumentSettings.h"
#include "ElementFields.h"
#include "FrameSettings.h"
#include "LayerSettings.h"
#include "MapSettings.h"
#include "RasterLayerSettings.h"
#include "SeriesSettings.h"
#include "SurroundFields.h"

#include "host/SysCarto/elements/ElementContainer.h"
#include "host/SysCarto/layout/MapFrameHost.h"
#include "host/SysCarto/layout/PageLayoutHost.h"
#include "host/SysCarto/maps/ValueStep.h"
#include "host/SysCarto/surrounds/SurroundSettings.h"
#include "host/SysDisplay/SymbolFields.h"
#include "host/SysUtility/FileSaver.h"
#include "host/SysUtility/JsonFields.h"

#include <SysCarto/Editor.h>
#include <SysCarto/MapSurroundFrame.h>
#include <SysCarto/PageLayout.h>

#include <QFileInfo>

#include <algorithm>
#include <type_traits>
#include <utility>

namespace SysCarto {

using SysUtility::_ptr_t;
using SysUtility::FieldInfo;
using SysUtility::Fields;
using SysUtility::FieldSheet;
using SysUtility::SheetField;

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Editable)
};

// With the maps of all data frames.
DocumentContext contextOf(MapDocument const& document) {
  DocumentContext context;
  context.folder = QFileInfo(SysUtility::FileSaver::realPath(document.GetPath())).absolutePath();
  context.relativePaths = document.IsUsesRelativePaths() && !document.GetPath().isEmpty();
  auto const layout = document.GetPageLayout();
  if (!layout) return context;
  context.maps = mapsOf(*layout);
  for (auto const& element : layout->GetGraphicsContainer()->GetElements())
    if (auto const frame = SysUtility::ptr_cast<MapFrameElement>(element))
      context.framedMaps << context.maps.indexOf(frame->GetMap());
  return context;
}

QJsonObject valuesIn(Fields::Describe const& list) {
  FieldSheet sheet;
  list(sheet);
  return SysUtility::wholeObject(sheet.fields());
}

ElementContainer* elementsOf(MapDocument const& document) {
  auto const layout = document.GetPageLayout();
  return layout ? &PageLayoutHost::workplace(*layout) : nullptr;
}

class EditableElement final : public Editable {
public:
  EditableElement(MapDocument const& document, ElementHandle handle) : document_(document), handle_(handle) {}

  QString name() const override {
    auto const element = find();
    if (!element) return QString();
    if (!element->GetName().isEmpty()) return element->GetName();
    int depth = 0;
    find(&depth);
    QString const kind = captionOfKind(*element);
    return depth > 0 ? kind : QStringLiteral("%1 #%2").arg(kind).arg(handle_);
  }

  QStringList attributes() const override {
    auto const frame = SysUtility::ptr_cast<MapSurroundFrame>(find());
    auto const legend = frame ? SysUtility::ptr_cast<Legend>(frame->GetMapSurround()) : nullptr;
    return legend ? LegendSettings::layersFor(*legend) : QStringList();
  }

protected:
  void list(Fields& fields, DocumentContext& context) const override {
    int depth = 0;
    auto const element = find(&depth);
    listOne(fields, element, depth, context);
  }

  Change read(Fields& reader, DocumentContext& context) const override {
    if (auto const frame = SysUtility::ptr_cast<MapFrameElement>(find()))
      context.framedMaps.remove(context.maps.indexOf(frame->GetMap()));
    _ptr_t<Element> made;
    int depth = 0;
    find(&depth);
    listElement(reader, made, {context, false, depth});
    if (made && depth == 0 && made->GetHandle() != handle_) reader.fail("handle", Texts::tr("can't be changed"));
    if (made && reader.ok() && isSame(made, depth, context)) return nullptr;
    QString const problem = made ? problemOf(*made) : QString();
    if (!problem.isEmpty()) context.warnings << problem;
    return [this, made, told = context.warnings](QString const&, QStringList& warnings) {
      warnings += told;
      auto const former = SysUtility::ptr_cast<MapFrameElement>(find());
      auto const frame = SysUtility::ptr_cast<MapFrameElement>(made);
      // A lock is no part of the history, but for one that is set here.
      if (former && frame && former->IsLocked() == frame->IsLocked()) MapFrameHost::shareLock(*frame, *former);
      PageLayoutHost::holderOf(*document_.GetPageLayout(), handle_).ReplaceElement(handle_, made);
    };
  }

private:
  static void listOne(Fields& fields, _ptr_t<Element> element, int depth, DocumentContext& context) {
    context.framedMaps.clear();
    if (element) listElement(fields, element, {context, false, depth});
  }

  // Another way to say the same, such as a whole turn, is no change.
  bool isSame(_ptr_t<Element> const& made, int depth, DocumentContext const& context) const {
    auto const valuesOf = [&](_ptr_t<Element> const& one) {
      DocumentContext own = context;
      return valuesIn([&](Fields& fields) { listOne(fields, one, depth, own); });
    };
    return valuesOf(made) == valuesOf(find());
  }

  // The depth is that of open groups in which it lies.
  _ptr_t<Element> find(int* depth = nullptr) const {
    auto const layout = document_.GetPageLayout();
    return layout ? PageLayoutHost::find(*layout, handle_, depth) : nullptr;
  }

  MapDocument const& document_;
  ElementHandle const handle_;
};

template <class Settings>
QJsonObject valuesOf(Settings settings) {
  return valuesIn([&](Fields& fields) { settings.list(fields); });
}

// What differs between two settings is taken from the second one, all else from what there is now: a command that keeps
// out of the history may have changed that meanwhile.
template <class Settings>
Settings mergedChange(Settings const& from, Settings const& to, Settings const& now) {
  QJsonObject const before = valuesOf(from), after = valuesOf(to);
  QJsonObject merged = valuesOf(now);
  if (merged == before) return to;
  for (QString const& key : before.keys() + after.keys()) {
    if (before.value(key) == after.value(key)) continue;
    merged.remove(key);
    if (after.contains(key)) merged.insert(key, after.value(key));
  }
  Settings settings = to;
  QString const problem = SysUtility::readJson(SysUtility::withoutNulls(merged).toObject(), settings);
  return problem.isEmpty() ? settings : to;
}

// Something that stays where it is has other settings, whose fields change with each other: what was wanted of a map's
// system, say, leads to other bounds, too. So the step knows what it has led to.
template <class Target, class Uses, class Settings>
class SettingsStep final : public QUndoCommand {
public:
  /// `told` gets what is to be said of the settings that were put last.
  SettingsStep(QString const& name, _ptr_t<Target> target, Uses uses, DocumentContext context, Settings wanted,
               std::shared_ptr<QStringList> told)
      : QUndoCommand(name),
        target_(std::move(target)),
        uses_(std::move(uses)),
        context_(std::move(context)),
        told_(std::move(told)),
        before_(now()),
        after_(std::move(wanted)) {}

  /// Before it goes into the history, which forgets what could be redone. False where what was wanted can't be, and all
  /// is as it was.
  bool begin() {
    put(mergedChange(before_, after_, now()));
    after_ = now();
    isBegun_ = true;
    return valuesOf(after_) != valuesOf(before_);
  }

  void undo() override { put(mergedChange(after_, before_, now())); }
  void redo() override {
    if (!std::exchange(isBegun_, false)) put(mergedChange(before_, after_, now()));
  }

private:
  Settings now() const { return uses_.of(*target_, context_); }
  void put(Settings const& settings) {
    SysUtility::ChangeMark::Step const step;
    DocumentContext own = context_;
    uses_.apply(*target_, settings, own);
    *told_ = own.warnings;
  }

  _ptr_t<Target> const target_;
  Uses const uses_;
  DocumentContext const context_;
  std::shared_ptr<QStringList> const told_;
  Settings const before_;
  Settings after_;
  bool isBegun_ = false;  // and not redone since
};

// Something that stays where it is.
template <class Target, class Settings>
class EditableSettings final : public Editable {
public:
  struct Uses {
    QString name;
    Settings (*of)(Target const&, DocumentContext const&);
    std::function<void(Target&, Settings const&, DocumentContext&)> apply;
    QStringList (*attributes)(Target const&);  // may be null
  };

  EditableSettings(_ptr_t<Target> target, Uses uses) : target_(std::move(target)), uses_(std::move(uses)) {}

  QString name() const override { return uses_.name; }
  QStringList attributes() const override { return uses_.attributes ? uses_.attributes(*target_) : QStringList(); }
  _ptr_t<Layer> layer() const override {
    if constexpr (std::is_base_of_v<Layer, Target>) return target_;
    return nullptr;
  }

protected:
  void list(Fields& fields, DocumentContext& context) const override { uses_.of(*target_, context).list(fields); }

  Change read(Fields& reader, DocumentContext& context) const override {
    Settings settings = uses_.of(*target_, context);  // a size of one's own begins with the sheet's
    settings.list(reader);
    if (reader.ok() && valuesOf(settings) == valuesOf(uses_.of(*target_, context))) return nullptr;
    return [this, settings, context](QString const& step, QStringList& warnings) {
      auto const told = std::make_shared<QStringList>();
      auto made = std::make_unique<SettingsStep<Target, Uses, Settings>>(step, target_, uses_, context, settings, told);
      if (made->begin()) takeStep(std::move(made));
      warnings += *told;
    };
  }

private:
  _ptr_t<Target> const target_;
  Uses const uses_;
};

using EditableMap = EditableSettings<Map, MapSettings>;
using EditableLayer = EditableSettings<VectorLayer, LayerSettings>;
using EditableRaster = EditableSettings<RasterLayer, RasterLayerSettings>;
using EditableLayerGroup = EditableSettings<LayerGroup, LayerGroupSettings>;

// A number as in “#3”, or a name.
template <class T>
QList<_ptr_t<T>> called(QList<_ptr_t<T>> const& all, QString const& name) {
  QList<_ptr_t<T>> found;
  for (int i = 0; i < all.size(); ++i)
    if (all.at(i)->GetName() == name || name == QStringLiteral("#%1").arg(i)) found << all.at(i);
  return found;
}

QString inSentence(char const* source) {
  QString const caption = QCoreApplication::translate("Fields", source);
  bool const isEnglish = caption == QLatin1String(source);
  return isEnglish ? caption.left(1).toLower() + caption.mid(1) : caption;
}

struct Wanted {
  QStringList path;
  SysUtility::NewValue value;
};

// What has another kind keeps what it can: a symbol that becomes one of layers is the lowest of them, and the other way
// round; the symbol of a renderer goes on drawing. A new class begins with the symbol of the one before.
Wanted wantedOf(Fields::Describe const& list, QStringList const& path, SysUtility::NewValue const& value) {
  if (path.size() == 3 && path.first() == QLatin1String("renderer") && path.last() == QLatin1String("-")) {
    FieldSheet sheet;
    list(sheet);
    SheetField const* const renderer = fieldAt(sheet.fields(), {path.first()});
    QJsonValue const symbol = renderer ? symbolForNewClass(wholeValue(*renderer).toObject()) : QJsonValue();
    return {path, [value, symbol](QJsonValue const& now) {
              QJsonValue const made = value(now);
              QJsonObject with = made.toObject();
              QString const key = QStringLiteral("symbol");
              if (!made.isObject() || with.contains(key) || !symbol.isObject()) return made;
              with[key] = symbol;
              return QJsonValue(with);
            }};
  }
  if (path.last() != QLatin1String("type")) return {path, value};
  FieldSheet sheet;
  list(sheet);
  QStringList const whole = path.mid(0, path.size() - 1);
  SheetField const* const parent = fieldAt(sheet.fields(), whole);
  if (!parent || parent->info.kind != FieldInfo::Kind::Object) return {path, value};
  QJsonObject const now = wholeValue(*parent).toObject();
  QString const kind = value(now.value(path.last())).toString();
  QJsonObject other;
  if (kind == now.value(path.last()).toString()) return {path, value};
  if (SysDisplay::isSymbol(parent->info.field)) other = SysDisplay::layeredOrNot(now, kind);
  if (parent->key() == QLatin1String("renderer")) other = rendererAs(now, kind);
  if (parent->key() == QLatin1String("renderer") && now.contains(QStringLiteral("band")))
    other.insert(QStringLiteral("band"), now.value(QStringLiteral("band")));
  if (other.isEmpty()) return {path, value};
  return {whole, [other](QJsonValue const&) { return other; }};
}

// Whether a person looks within something for what stands beside it.
bool isOwnThing(Fields::Describe const& list, QString const& key) {
  FieldSheet sheet;
  list(sheet);
  return (key == QLatin1String("series") || key == QLatin1String("page")) && !fieldAt(sheet.fields(), {key});
}

}  // namespace

Editable::~Editable() = default;

QVector<QVector<SheetField>> Editable::fields(MapDocument const& document, List const& things) {
  DocumentContext const context = contextOf(document);
  QVector<QVector<SheetField>> all;
  for (Pointer const& thing : things) {
    DocumentContext own = context;
    FieldSheet sheet;
    thing->list(sheet, own);
    all << sheet.fields();
  }
  return all;
}

Editable::Pointer Editable::document(MapDocument const& document) {
  using EditableDocument = EditableSettings<PageLayout, DocumentSettings>;
  auto const layout = document.GetPageLayout();
  if (!layout) return nullptr;
  return std::make_shared<EditableDocument>(
      layout,
      EditableDocument::Uses{
          Texts::tr("the document"),
          [](PageLayout const& one, DocumentContext const&) { return DocumentSettings::of(one); },
          [](PageLayout& one, DocumentSettings const& settings, DocumentContext&) { settings.applyTo(one); }, nullptr});
}

Editable::Pointer Editable::page(MapDocument const& document) {
  using EditablePage = EditableSettings<Page, PageSettings>;
  auto const layout = document.GetPageLayout();
  Page* const page = layout ? layout->GetPage() : nullptr;
  if (!page) return nullptr;
  return std::make_shared<EditablePage>(
      SysUtility::retain(page),
      EditablePage::Uses{
          Texts::tr("the page"), [](Page const& one, DocumentContext const&) { return PageSettings::of(one); },
          [](Page& one, PageSettings const& settings, DocumentContext&) { settings.applyTo(one); }, nullptr});
}

Editable::Pointer Editable::series(MapDocument const& document) {
  using EditableSeries = EditableSettings<PageLayout, SeriesSettings>;
  auto const layout = document.GetPageLayout();
  if (!layout) return nullptr;
  return std::make_shared<EditableSeries>(
      layout, EditableSeries::Uses{Texts::tr("the series"), &SeriesSettings::of,
                                   [](PageLayout& one, SeriesSettings const& settings, DocumentContext& context) {
                                     settings.applyTo(one, context);
                                   },
                                   [](PageLayout const& one) { return attributesOf(coverageOf(one)); }});
}

Editable::Pointer Editable::element(MapDocument const& document, ElementHandle handle) {
  return std::make_shared<EditableElement>(document, handle);
}

Editable::Pointer Editable::map(_ptr_t<Map> const& map) {
  return std::make_shared<EditableMap>(
      map,
      EditableMap::Uses{map->GetName(), [](Map const& one, DocumentContext const&) { return MapSettings::of(one); },
                        [](Map& one, MapSettings const& settings, DocumentContext& context) {
                          settings.applyTo(one, context.warnings);
                        },
                        nullptr});
}

Editable::Pointer Editable::layer(_ptr_t<Map> const& map, _ptr_t<Layer> const& layer) {
  if (auto const raster = SysUtility::ptr_cast<RasterLayer>(layer))
    return std::make_shared<EditableRaster>(
        raster, EditableRaster::Uses{layer->GetName(), &RasterLayerSettings::of,
                                     [map](RasterLayer& one, RasterLayerSettings const& settings,
                                           DocumentContext& context) { settings.applyTo(one, *map, context); },
                                     nullptr});
  auto const vector = SysUtility::ptr_cast<VectorLayer>(layer);
  if (!vector) return nullptr;
  return std::make_shared<EditableLayer>(
      vector, EditableLayer::Uses{layer->GetName(), &LayerSettings::of,
                                  [map](VectorLayer& one, LayerSettings const& settings, DocumentContext& context) {
                                    settings.applyTo(one, *map, context);
                                  },
                                  [](VectorLayer const& one) { return attributesOf(one.source()); }});
}

Editable::Pointer Editable::layerGroup(_ptr_t<LayerGroup> const& group) {
  return std::make_shared<EditableLayerGroup>(
      group,
      EditableLayerGroup::Uses{
          group->name(), [](LayerGroup const& one, DocumentContext const&) { return LayerGroupSettings::of(one); },
          [](LayerGroup& one, LayerGroupSettings const& settings, DocumentContext&) { settings.applyTo(one); },
          nullptr});
}

Editable::List Editable::named(MapDocument const& document, QString const& text) {
  List things;
  auto const layout = document.GetPageLayout();
  if (!layout) return things;
  QString const mapPrefix = QStringLiteral("map:"), layerPrefix = QStringLiteral("layer:");
  if (text.startsWith(layerPrefix)) {
    QString const path = text.mid(layerPrefix.size());
    QString const name = path.section(QLatin1Char('/'), 1);
    for (auto const& map : called(mapsOf(*layout), path.section(QLatin1Char('/'), 0, 0))) {
      for (auto const& layer : called(map->GetLayers(), name))
        if (auto const thing = Editable::layer(map, layer)) things << thing;
      for (auto const& group : groupsOf(*map))
        if (group->name() == name) things << layerGroup(group);
    }
  } else if (text.startsWith(mapPrefix)) {
    for (auto const& map : called(mapsOf(*layout), text.mid(mapPrefix.size()))) things << Editable::map(map);
  } else if (text == QLatin1String("document")) {
    things << Editable::document(document);
  } else if (text == QLatin1String("page")) {
    if (auto const thing = page(document)) things << thing;
  } else if (text == QLatin1String("series")) {
    if (auto const thing = series(document)) things << thing;
  } else {
    auto const* const container = elementsOf(document);
    auto const elements =
        text == QLatin1String("selection") ? container->GetSelectedElements() : container->GetElements();
    for (auto const& element : elements)
      if (text == QLatin1String("selection") || element->GetName() == text ||
          text == QStringLiteral("#%1").arg(element->GetHandle()))
        things << Editable::element(document, element->GetHandle());
  }
  return things;
}

QString Editable::set(MapDocument const& document, List const& things, QStringList const& path,
                      SysUtility::NewValue const& value, QStringList& warnings) {
  if (things.isEmpty() || path.isEmpty()) return Texts::tr("there is no field to set");
  DocumentContext context = contextOf(document);
  QVector<Change> changes;
  QString what = path.join(QLatin1Char('/'));
  for (Pointer const& thing : things) {
    Change read;
    QSet<int> framedMaps = context.framedMaps;
    auto const list = [&](Fields& fields) {
      DocumentContext own = context;
      thing->list(fields, own);
    };
    Wanted const wanted = wantedOf(list, path, value);
    auto const change = SysUtility::changeField(
        list,
        [&](Fields& fields) {
          DocumentContext own = context;
          read = thing->read(fields, own);
          framedMaps = own.framedMaps;
        },
        wanted.path, wanted.value, [&] { return thing->attributes(); });
    if (!change.problem.isEmpty() && isOwnThing(list, path.first()))
      return Texts::tr("“%1” is a thing of its own, written without “document/”: %2").arg(path.first(), what);
    if (!change.problem.isEmpty()) return change.problem;
    if (change.isChange && read) changes << read;
    context.framedMaps = framedMaps;  // one map is in one frame, among those that are changed here, too
    if (change.caption) what = inSentence(change.caption);
  }
  if (changes.isEmpty()) return QString();
  QString const whose = things.size() == 1 ? things.first()->name() : Texts::tr("%1 elements").arg(things.size());
  QString const step = Texts::tr("Set %1 of %2").arg(what, whose);
  auto const whole = changes.size() > 1 ? std::make_unique<OneStep>(step) : nullptr;
  Editor::Instance()->StartOperation(step);
  for (Change const& change : qAsConst(changes)) change(step, warnings);
  Editor::Instance()->StopOperation();
  return QString();
}

}  // namespace SysCarto
