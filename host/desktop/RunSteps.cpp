#include "RunSteps.h"

#include "Console.h"
#include "DocumentLock.h"
#include "DocumentReport.h"
#include "NumberList.h"
#include "StepField.h"
#include "drawing/NewElements.h"
#include "drawing/TurnGesture.h"
#include "layers/AttributeReport.h"
#include "layers/IdentifyTool.h"
#include "layers/LayerClasses.h"
#include "layers/NewLayers.h"
#include "layers/LayerSteps.h"
#include "layers/PinnedLabels.h"
#include "output/FontNotes.h"
#include "output/ImageFormat.h"

#include "host/SysCarto/document/DocumentSources.h"
#include "host/SysCarto/maps/LayerTree.h"
#include "host/SysUtility/JsonFile.h"
#include "host/SysUtility/ScaleText.h"
#include "host/SysDisplay/TextShaper.h"

#include <SysCarto/Map.h>

#include <QApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMouseEvent>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using SysCarto::Map;
using SysCarto::MapSteps;
using SysUtility::_ptr_t;
using SysUtility::scaleDenominatorOf;
using SysUtility::SheetField;

namespace {

constexpr QSize viewSize(1024, 768);  // fixed, so that what depends on the view is the same on every machine
constexpr int movesOfADrag = 4;
constexpr int maxShown = 200;  // characters of a step in a message

bool isIn(QVector<CommandEntry> const& all, QString const& identifier) {
  return std::any_of(all.begin(), all.end(), [&](CommandEntry const& entry) {
    return entry.identifier.compare(identifier, Qt::CaseInsensitive) == 0;
  });
}

// What stands between commas; one of a name's own has a backslash before it.
QStringList namesIn(QString const& text) {
  static QRegularExpression const comma(QStringLiteral("(?<!\\\\),"));
  return text.split(comma).replaceInStrings(QStringLiteral("\\,"), QStringLiteral(","));
}

// By name, or by handle as in #12.
bool isCalled(SysCarto::Element const& element, QString const& name) {
  return element.GetName() == name || name == QStringLiteral("#%1").arg(element.GetHandle());
}

QString const layerPrefix = QStringLiteral("layer:");

bool isSetting(QString const& text) {
  StepField const field = StepField::of(text);
  return !field.what.isEmpty() && !field.path.isEmpty() && !field.value.isNull();
}

std::optional<PinnedLabels> pinIn(StepField const& field) {
  return PinnedLabels::read(field.path.join(QLatin1Char('/')), field.value);
}
bool isPin(QString const& text) { return isSetting(text) && pinIn(StepField::of(text)); }

// Why what stands in the right form has no meaning all the same, whatever the document is.
QString unclearClasses(QString const& text) {
  SysCarto::ClassifySettings settings;
  return LayerClasses::read(StepField::of(text).value, settings);
}
QString unclearExtent(QString const& text) {
  auto const side = numbersIn(text);
  return side[0] != side[2] && side[1] != side[3]
             ? QString()
             : RunSteps::tr("this rectangle has no area; its corners must differ in x and in y");
}

QString unclearDocument(QString const& file) {
  return ImageFormat::withSuffix(QFileInfo(file).suffix())
             ? RunSteps::tr(
                   "this is the name of an image, and what is saved is the document; name a .kdx file, or make "
                   "an image with Plotvane_Export")
             : QString();
}

bool isPoint(QString const& text) { return numbersIn(text).size() == 2; }
bool areTwoPoints(QString const& text) { return numbersIn(text).size() == 4; }
bool isScale(QString const& text) { return scaleDenominatorOf(text).has_value(); }
bool isView(QString const& text) { return text == QLatin1String("layout") || text == QLatin1String("map"); }
bool isAnswer(QString const& text) { return text.indexOf(QLatin1Char(':')) > 0; }
bool isNumber(QString const& text) { return numbersIn(text).size() == 1; }
bool isAddition(QString const& text) {
  return (text.startsWith(layerPrefix) && text.size() > layerPrefix.size()) || NewElement::of(text).has_value();
}
bool isLayer(QString const& text) { return text.startsWith(layerPrefix); }
bool isAnything(QString const& text) { return !text.isEmpty(); }

}  // namespace

// A step with a value is written NAME=VALUE; one without stands for itself.
struct RunSteps::Kind {
  QString name;
  QString value;  ///< as people are told; empty for a step without one
  bool (*isValue)(QString const&);
  QString (RunSteps::*run)(QString const& value);
  QString fixed;                                 ///< what `run` is given where the step has no value
  LayerStep const* ofLayers = nullptr;           ///< what is run instead
  QString (*unclear)(QString const&) = nullptr;  ///< what else is wrong with a value, without a full stop
};

QVector<RunSteps::Kind> RunSteps::kindsOfLayers() {
  QVector<Kind> kinds;
  for (LayerStep const& step : LayerStep::all())
    kinds.append({step.name, step.value, step.isValue, nullptr, {}, &step});
  return kinds;
}

QVector<RunSteps::Kind> const& RunSteps::kinds() {
  auto const text = [](char const* utf8) { return QString::fromUtf8(utf8); };
  // clang-format off
  static QVector<Kind> const kinds = kindsOfLayers() + QVector<Kind>{
      {text("select"),     text("NAME,NAME…"),   isAnything,   &RunSteps::select,  {}},
      {text("select-all"), {},                   nullptr,      &RunSteps::click,   text("Host_SelectAll")},
      {text("unselect"),   {},                   nullptr,      &RunSteps::click,   text("Host_Unselect")},
      {text("copy"),       {},                   nullptr,      &RunSteps::click,   text("Host_Copy")},
      {text("cut"),        {},                   nullptr,      &RunSteps::click,   text("Host_Cut")},
      {text("paste"),      {},                   nullptr,      &RunSteps::click,   text("Host_Paste")},
      {text("paste-in-place"), {},               nullptr,      &RunSteps::click,   text("Host_PasteInPlace")},
      {text("duplicate"),  {},                   nullptr,      &RunSteps::click,   text("Host_Duplicate")},
      {text("delete"),     {},                   nullptr,      &RunSteps::click,   text("Host_Delete")},
      {text("group"),      {},                   nullptr,      &RunSteps::click,   text("Host_Group")},
      {text("ungroup"),    {},                   nullptr,      &RunSteps::click,   text("Host_Ungroup")},
      {text("undo"),       {},                   nullptr,      &RunSteps::click,   text("Host_Undo")},
      {text("redo"),       {},                   nullptr,      &RunSteps::click,   text("Host_Redo")},
      {text("view"),       text("layout|map"),   isView,       &RunSteps::show,    {}},
      {text("focus"),      text("NAME"),         isAnything,   &RunSteps::focus,   {}},
      {text("click"),      text("X,Y"),          isPoint,      &RunSteps::clickAt, {}},
      {text("drag"),       text("X1,Y1,X2,Y2"),  areTwoPoints, &RunSteps::drag,    {}},
      {text("page"),       text("N|NAME|none"),  isAnything,   &RunSteps::showPage, {}},
      {text("scale"),      text("1:N"),          isScale,      &RunSteps::setScale, {}},
      {text("extent"),     text("X1,Y1,X2,Y2"),  areTwoPoints, &RunSteps::setExtent, {}, nullptr, unclearExtent},
      {text("show"),       text("LAYER"),        isAnything,   &RunSteps::showLayers, {}},
      {text("hide"),       text("LAYER"),        isAnything,   &RunSteps::hideLayers, {}},
      {text("set"),        text("WHAT/FIELD…:VALUE"), isSetting, &RunSteps::setField, {}},
      {text("get"),        text("WHAT/FIELD…"),  isAnything,   &RunSteps::getField, {}},
      {text("classify"),   text("layer:MAP/LAYER/FIELD:METHOD,…"), isSetting, &RunSteps::classify, {}, nullptr, unclearClasses},
      {text("label"),      text("layer:MAP/LAYER/KEY:X,Y|hidden|free"), isPin, &RunSteps::pinLabel, {}},
      {text("add"),        text("KIND:CONTENT@X,Y,…|layer:FILE|LAYER"), isAddition, &RunSteps::add, {}},
      {text("rotate"),     text("DEGREES"),      isNumber,     &RunSteps::rotate,  {}},
      {text("identify"),   text("X,Y"),          isPoint,      &RunSteps::identify, {}},
      {text("attributes"), text("layer:MAP/LAYER:CONDITION"), isLayer, &RunSteps::attributes, {}},
      {text("answer"),     text("WIDGET:VALUE"), isAnswer,     &RunSteps::answer,  {}},
      {text("accept"),     {},                   nullptr,      &RunSteps::answer,  text("accept")},
      {text("cancel"),     {},                   nullptr,      &RunSteps::answer,  text("cancel")},
      {text("export"),     text("FILE"),         isAnything,   &RunSteps::exportTo, {}},
      {text("print"),      text("PRINTER|FILE.pdf"), isAnything, &RunSteps::print, {}},
      {text("save"),       text("FILE"),         isAnything,   &RunSteps::save,    {}, nullptr, unclearDocument},
      {text("info"),       {},                   nullptr,      &RunSteps::info,    {}},
  };
  // clang-format on
  return kinds;
}

QStringList RunSteps::names() {
  QStringList names;
  for (Kind const& kind : kinds())
    names << (kind.value.isEmpty() ? kind.name : kind.name + QLatin1Char('=') + kind.value);
  return names;
}

RunSteps::RunSteps(bool force) : force_(force) {
  QObject::connect(&bench_.commands(), &CommandSet::failed, [this](QString const& sentence) { failure_ = sentence; });
  bench_.views().resize(viewSize);
  bench_.views().layoutView().setSnaps(false);  // a step means what it says
  bench_.views().QWidget::show();
}

RunSteps::~RunSteps() = default;

RunSteps::Kind const* RunSteps::kindOf(QString const& step) {
  QString const name = step.section(QLatin1Char('='), 0, 0);
  for (Kind const& kind : kinds())
    if (kind.name == name && kind.value.isEmpty() == !step.contains(QLatin1Char('='))) return &kind;
  return nullptr;
}

QString RunSteps::exportTo(QString const& file) {
  QStringList notes;
  QString const problem = exportPage(bench_, file, notes);
  for (QString const& note : qAsConst(notes)) Console::remark(note);
  return problem;
}

QString RunSteps::print(QString const& target) {
  SysDisplay::takeFontTroubles();
  QString const problem = printPage(bench_, target);
  for (QString const& note : fontNotes(SysDisplay::takeFontTroubles())) Console::remark(note);
  return problem;
}

QString RunSteps::check(QStringList const& steps) const {
  if (bench_.plugin().state() != PluginLibrary::State::Loaded) return bench_.plugin().reason();
  for (QString const& step : steps) {
    Kind const* const kind = kindOf(step);
    bool const isUnknown = !kind && !bench_.commands().find(step);
    if (isUnknown && isIn(hostCatalogue(), step))
      return step.startsWith(QLatin1String("Host_Save"), Qt::CaseInsensitive)
                 ? tr("run: %1 belongs to the window; here save=FILE saves the document.").arg(step)
                 : tr("run: %1 belongs to the window; leave it out.").arg(step);
    if (isUnknown && isIn(commandCatalogue(), step))
      return tr("run: this plug-in does not build %1; plotvane commands lists what it builds.").arg(step);
    if (isUnknown)
      return tr("run: \"%1\" is neither a step nor a command's identifier; plotvane run --help lists the steps, and "
                "plotvane commands the commands.")
          .arg(step);
    if (kind && kind->isValue && !kind->isValue(step.mid(kind->name.size() + 1)))
      return tr("run: \"%1\" is written %2=%3.").arg(step, kind->name, kind->value);
    QString const unclear = kind && kind->unclear ? kind->unclear(step.mid(kind->name.size() + 1)) : QString();
    if (!unclear.isEmpty()) return tr("run: %1: %2.").arg(step, unclear);
  }
  return QString();
}

QString RunSteps::open(QString const& file) {
  bool const opened = bench_.session().open(file);
  auto const& document = bench_.session().document();
  for (QString const& warning : document.GetWarnings() + SysCarto::laterWarnings(document)) Console::complain(warning);
  return opened ? QString() : bench_.session().takeProblem();
}

QString RunSteps::run(QString const& step) {
  Kind const* const kind = kindOf(step);
  QString const value = kind && kind->isValue ? step.mid(kind->name.size() + 1) : kind ? kind->fixed : step;
  QString const problem = !kind            ? click(value)
                          : kind->ofLayers ? runOnLayers(*kind->ofLayers, value)
                                           : (this->*kind->run)(value);
  QCoreApplication::processEvents();
  if (problem.isEmpty()) return problem;
  return tr("run: %1: %2").arg(step.size() > maxShown ? step.left(maxShown) + QChar(0x2026) : step, problem);
}

QString RunSteps::runOnLayers(LayerStep const& step, QString const& value) {
  LayerOutcome const outcome = step.run(bench_.session().document(), value);
  for (QString const& warning : outcome.warnings) Console::complain(warning);
  return outcome.problem;
}

QString RunSteps::unusedAnswers() {
  QString const problem = answers_.takeProblem();
  return problem.isEmpty() ? QString() : tr("run: %1.").arg(problem);
}

QString RunSteps::click(QString const& identifier) {
  HostedCommand const* const command = bench_.commands().find(identifier);
  if (!bench_.commands().click(*command))
    return tr("%1 is disabled; it needs %2.").arg(command->entry.caption, command->entry.needs);
  QString const problem = answers_.takeProblem(), failure = std::exchange(failure_, QString());
  return problem.isEmpty() ? failure : problem + QLatin1Char('.');
}

QString RunSteps::select(QString const& names) {
  auto const view = bench_.desktop().GetActiveView();
  auto* const container = view ? view->GetGraphicsContainer() : nullptr;
  if (!container) return tr("there is no view whose elements could be selected.");
  QList<_ptr_t<SysCarto::Element>> chosen;
  for (QString const& name : namesIn(names)) {
    int const before = chosen.size();
    for (auto const& element : container->GetElements())
      if (isCalled(*element, name)) chosen << element;
    if (chosen.size() == before && bench_.views().kind() == DocumentViews::Kind::Map)
      return tr("the map is shown, and holds nothing named \"%1\"; view=layout shows the page and its elements.")
          .arg(name);
    if (chosen.size() == before)
      return tr("no element is named \"%1\"; plotvane info lists names and handles, and #12 is the one with handle 12.")
          .arg(name);
  }
  container->UnselectAllElements();
  for (auto const& element : qAsConst(chosen)) container->SelectElement(element);
  return QString();
}

QString RunSteps::show(QString const& view) {
  return click(view == QLatin1String("map") ? QStringLiteral("Host_MapView") : QStringLiteral("Host_LayoutView"));
}

QString RunSteps::focus(QString const& name) {
  for (auto const& element : bench_.views().GetPageLayout()->GetGraphicsContainer()->GetElements()) {
    auto const frame = SysUtility::ptr_cast<SysCarto::MapFrameElement>(element);
    if (!frame || (frame->GetMap()->GetName() != name && !isCalled(*frame, name))) continue;
    bench_.views().focusOn(frame->GetMap());
    return QString();
  }
  return tr("no map is named \"%1\"; plotvane info lists maps and handles, and #12 is the map of the data frame with "
            "handle 12.")
      .arg(name);
}

QString RunSteps::clickAt(QString const& point) { return withMouse({{numbersIn(point)[0], numbersIn(point)[1]}}); }

QString RunSteps::drag(QString const& points) {
  auto const at = numbersIn(points);
  QPointF const from(at[0], at[1]), to(at[2], at[3]);
  QVector<QPointF> path{from};
  for (int i = 1; i <= movesOfADrag; ++i) path << from + (to - from) * i / movesOfADrag;
  return withMouse(path);
}

QString RunSteps::withMouse(QVector<QPointF> const& pathCm) {
  auto const layout = SysUtility::ptr_cast<SysCarto::PageLayout>(bench_.desktop().GetActiveView());
  HostedCommand const* const tool = bench_.commands().currentTool();
  if (!layout || !tool->command->IsEnable()) return tr("%1 needs the page layout shown.").arg(tool->entry.caption);
  QVector<QPoint> path;
  for (QPointF const& point : pathCm) path << layout->GetDisplayTransformation()->FromMapPoint(point.x(), point.y());
  auto const send = [this](QEvent::Type type, QPoint const& at) {
    bool const isMove = type == QEvent::MouseMove;
    QMouseEvent event(type, at, isMove ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&bench_.views().layoutView(), &event);
  };
  send(QEvent::MouseButtonPress, path.first());
  for (QPoint const& at : path.mid(1)) send(QEvent::MouseMove, at);
  send(QEvent::MouseButtonRelease, path.last());
  return QString();
}

QString RunSteps::setScale(QString const& scale) {
  return withFreeMap([&](Map& map) { return MapSteps::setScale(map, *scaleDenominatorOf(scale)); });
}

QString RunSteps::setExtent(QString const& sides) {
  auto const side = numbersIn(sides);
  return withFreeMap([&](Map& map) { return MapSteps::setExtent(map, {side[0], side[1], side[2], side[3]}); });
}

// The map of the focus data frame, as the wheel and the field for the scale find it.
QString RunSteps::withFreeMap(std::function<bool(Map&)> const& change) {
  auto const layout = bench_.session().document().GetPageLayout();
  auto const frame = layout->GetFocusMapFrameElement();
  if (!frame) return tr("the page has no data frame, so there is no map to show.");
  if (frame->IsLocked()) return tr("the data frame is locked; Plotvane_UnlockDataFrame unlocks it.");
  return change(*frame->GetMap()) ? QString() : tr("a map can't show that much or that little; give other numbers.");
}

// All of that name, layers and groups of them, since names need not differ.
QString RunSteps::setVisible(QString const& layerName, bool visible) {
  auto const rows = LayerActions::named(bench_.session().document(), layerName);
  if (!rows.isEmpty()) return LayerActions::setVisible(rows, visible).problem;
  auto const map = bench_.session().document().GetPageLayout()->GetFocusMap();
  QStringList names;
  for (auto const& layer : map ? map->GetLayers() : QList<_ptr_t<SysCarto::Layer>>()) {
    names << layer->GetName();
    if (names.last() == layerName) MapSteps::setVisible(*layer, visible);
  }
  for (auto const& group : map ? SysCarto::groupsOf(*map) : SysCarto::LayerGroups()) {
    names << group->name();
    if (names.last() == layerName) MapSteps::setVisible(*group, visible);
  }
  if (names.isEmpty()) return tr("the page has no map with layers that could be shown or hidden.");
  return names.contains(layerName)
             ? QString()
             : tr("the focus map has no layer \"%1\"; it has: %2.").arg(layerName, names.join(QStringLiteral(", ")));
}

QString RunSteps::withThings(QString const& what, std::function<QString(SysCarto::Editable::List const&)> const& use) {
  auto const things = SysCarto::Editable::named(bench_.session().document(), what);
  if (!things.isEmpty()) return use(things);
  return tr("there is no \"%1\"; write document, page, series, selection, an element's name or #HANDLE, map:NAME, or "
            "layer:MAP/LAYER; plotvane info lists them.")
      .arg(what);
}

QString RunSteps::setField(QString const& text) {
  StepField const field = StepField::of(text);
  return withThings(field.what, [&](SysCarto::Editable::List const& things) {
    QStringList warnings;
    QString const problem = field.giveTo(bench_.session().document(), things, warnings);
    for (QString const& warning : qAsConst(warnings)) Console::complain(warning);
    return problem;
  });
}

QString RunSteps::classify(QString const& text) {
  StepField const field = StepField::of(text);
  SysCarto::ClassifySettings wanted;
  wanted.field = field.path.join(QLatin1Char('/'));
  LayerClasses::read(field.value, wanted);
  return withThings(field.what, [&](SysCarto::Editable::List const& layers) {
    QStringList warnings;
    QString problem;
    for (auto const& layer : layers)
      if (problem.isEmpty()) problem = LayerClasses::make(bench_.session().document(), layer, wanted, warnings);
    for (QString const& warning : qAsConst(warnings)) Console::complain(warning);
    return problem;
  });
}

QString RunSteps::pinLabel(QString const& text) {
  StepField const field = StepField::of(text);
  return withThings(field.what, [&](SysCarto::Editable::List const& layers) {
    QStringList warnings;
    QString const problem = pinIn(field)->giveTo(bench_.session().document(), layers.first(), warnings);
    for (QString const& warning : qAsConst(warnings)) Console::complain(warning);
    return problem;
  });
}

QString RunSteps::getField(QString const& text) {
  StepField const field = StepField::of(text);
  return withThings(field.what, [&](SysCarto::Editable::List const& things) {
    for (auto const& sheet : SysCarto::Editable::fields(bench_.session().document(), things)) {
      SheetField const* const found = SysUtility::fieldAt(sheet, field.path);
      if (!found && !field.path.isEmpty())
        return tr("there is no such field; get=%1 prints all that there are.").arg(field.what);
      Console::print(SysUtility::jsonLine(found ? wholeValue(*found) : QJsonValue(wholeObject(sheet))));
    }
    return QString();
  });
}

// The file of a picture is where the program runs, as in every other step.
QString RunSteps::add(QString const& text) {
  if (text.startsWith(layerPrefix)) {
    QStringList warnings;
    QString const problem = NewLayers::addNamed(bench_.session().document(), text.mid(layerPrefix.size()), warnings);
    for (QString const& warning : qAsConst(warnings)) Console::complain(warning);
    return problem;
  }
  auto const layout = SysUtility::ptr_cast<SysCarto::PageLayout>(bench_.desktop().GetActiveView());
  if (!layout || !layout->GetPage()) return tr("an element can only be added where the page layout is shown.");
  auto element = *NewElement::of(text);
  if (element.kind->content == NewElementKind::Content::File)
    element.content = QFileInfo(element.content).absoluteFilePath();
  return element.kind->insert(*layout, element.points, element.content);
}

QString RunSteps::rotate(QString const& degrees) {
  auto const layout = SysUtility::ptr_cast<SysCarto::PageLayout>(bench_.desktop().GetActiveView());
  return layout && turnSelection(*layout, numbersIn(degrees).first())
             ? QString()
             : tr("nothing that can be turned is selected; texts, pictures, markers, lines, polygons and groups of "
                  "these can.");
}

QString RunSteps::identify(QString const& place) {
  auto const at = numbersIn(place);
  auto const found = identifyAt(bench_.views(), {at[0], at[1]});
  if (!found) return tr("there is no map at this place; on the page, it is given in centimetres.");
  Console::print(SysUtility::jsonLine(jsonOf(*found)));
  return QString();
}

QString RunSteps::attributes(QString const& text) {
  StepField const named = StepField::of(text);
  return reportAttributes(bench_.session().document(), named.what.mid(layerPrefix.size()), named.value,
                          [](QJsonObject const& row) { Console::print(SysUtility::jsonLine(row)); });
}

QString RunSteps::answer(QString const& text) {
  using How = DialogAnswers::Answer::Kind;
  int const colon = text.indexOf(QLatin1Char(':'));
  if (colon > 0)
    answers_.add({How::Widget, text.left(colon), text.mid(colon + 1)});
  else
    answers_.add({text == QLatin1String("accept") ? How::Accept : How::Cancel, {}, {}});
  return QString();
}

QString RunSteps::save(QString const& file) {
  DocumentLock lock(file);
  if (!lock.take() && !force_) return tr("%1 Name another file, or pass --force.").arg(lock.holder());
  if (!force_ && lock.guards(bench_.session().path()) && bench_.session().isFileChanged())
    return tr("%1 was changed by another program since it was read; name another file, or pass --force.").arg(file);
  if (!bench_.session().saveAs(file)) return bench_.session().takeProblem();
  QString const remark = bench_.session().takeRemark();
  if (!remark.isEmpty()) Console::complain(remark);
  return QString();
}

QString RunSteps::info(QString const&) {
  Console::print(QString::fromUtf8(QJsonDocument(documentJson(bench_.session().document())).toJson()).trimmed());
  return QString();
}
