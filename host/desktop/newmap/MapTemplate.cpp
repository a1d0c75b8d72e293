#include "MapTemplate.h"

#include "host/SysCarto/elements/Placeholders.h"
#include "host/SysUtility/FileReach.h"
#include "host/SysUtility/JsonFile.h"

#include <functional>

namespace {

using OnText = std::function<void(QJsonObject& element)>;

bool hasPlaceholders(QJsonObject const& element) {
  QString const text = element.value("text").toString();
  bool found = false;
  for (QString const& name : SysCarto::Placeholders::names())
    found = found || text.contains(QLatin1Char('[') + name + QLatin1Char(']')) ||
            text.contains(QLatin1Char('[') + name + QLatin1Char(':'));
  return found && element.value("placeholders").toBool(true);
}

// Texts of groups, too, in an order that stays.
QJsonArray withTexts(QJsonArray elements, OnText const& onText) {
  for (int i = 0; i < elements.size(); ++i) {
    QJsonObject element = elements.at(i).toObject();
    if (element.value("type") == QLatin1String("text")) onText(element);
    if (element.value("type") == QLatin1String("group"))
      element.insert("members", withTexts(element.value("members").toArray(), onText));
    elements.replace(i, element);
  }
  return elements;
}

// The number of the text that gets the title; −1 where one names the map itself, or there is none.
int titleAmong(QJsonArray const& elements, QString const& mapName) {
  int number = 0, title = -1;
  double best = 0;
  bool isNamed = false;
  withTexts(elements, [&](QJsonObject const& element) {
    QString const text = element.value("text").toString(), name = element.value("name").toString();
    constexpr double aboveAllSizes = 1e6;
    bool const isCalled =
        name == QLatin1String("Title") || name == QCoreApplication::translate("PageComposition", "Title");
    double const size = isCalled ? aboveAllSizes : element.value("symbol").toObject().value("size").toDouble(10);
    bool const isFilled = hasPlaceholders(element);
    isNamed =
        isNamed ||
        (isFilled && (text.contains(QLatin1String("[map]")) || text.contains(QStringLiteral("[map:%1]").arg(mapName))));
    if (!isFilled && size > best) best = size, title = number;
    ++number;
  });
  return isNamed ? -1 : title;
}

}  // namespace

bool MapTemplate::read(QString const& file, QString& problem) {
  problem = SysUtility::FileReach::refusal(file);
  if (!problem.isEmpty()) {
    problem = SysUtility::aboutFile(file, problem);
    return false;
  }
  auto const read = SysUtility::readJsonFile(file, {tr("template"), QStringLiteral(".kdx"), 256}, problem);
  if (!read) return false;
  json_ = *read;
  QJsonArray const maps = json_.value("maps").toArray();
  for (QJsonValue const& element : json_.value("elements").toArray()) {
    QJsonArray const sides = element.toObject().value("rectangle").toArray();
    QRectF const place(QPointF(sides.at(0).toDouble(), sides.at(1).toDouble()),
                       QPointF(sides.at(2).toDouble(), sides.at(3).toDouble()));
    int const map = element.toObject().value("map").toInt(-1);
    if (element.toObject().value("type") != QLatin1String("dataFrame") || map < 0 || map >= maps.size()) continue;
    if (place.width() * place.height() > frame_.width() * frame_.height()) frame_ = place, map_ = map;
  }
  if (map_ < 0) problem = tr("%1: the template has no data frame for the map; give it one.").arg(file);
  mapName_ = maps.at(map_).toObject().value("name").toString();
  return map_ >= 0;
}

void MapTemplate::fillText(QJsonObject& element, bool isTitle, QString const& title) {
  QString text = element.value("text").toString();
  if (isTitle) {
    text = title;
    element.insert("placeholders", false);
  } else if (hasPlaceholders(element)) {
    text.replace(QStringLiteral(":%1]").arg(mapName_), QStringLiteral(":%1]").arg(title));
  } else {
    keptTexts_ << text;
  }
  element.insert("text", text);
}

QJsonObject MapTemplate::filled(QJsonObject const& map, QJsonArray const& entries, QString const& title) {
  QJsonObject json = json_;
  QJsonArray maps = json.value("maps").toArray(), elements = json.value("elements").toArray();
  maps.replace(map_, map);
  int const titleAt = titleAmong(elements, mapName_);
  int number = 0;
  keptTexts_.clear();
  elements = withTexts(elements, [&](QJsonObject& element) { fillText(element, number++ == titleAt, title); });
  for (int i = 0; i < elements.size(); ++i) {
    QJsonObject element = elements.at(i).toObject(), content = element.value("surround").toObject();
    if (content.value("kind") != QLatin1String("legend") || content.value("map").toInt(-1) != map_) continue;
    content.insert("entries", entries);
    content.insert("others", "omit");
    element.insert("surround", content);
    elements.replace(i, element);
  }
  json.insert("maps", maps);
  json.insert("elements", elements);
  return json;
}
