#pragma once

#include <QJsonObject>
#include <QString>

namespace SysCarto {
class MapDocument;
}

/// What is on a document's page, under the keys `page`, `elements`, `maps` and `view`. Page lengths are centimetres;
/// rectangles are [xmin, ymin, xmax, ymax]. docs/command-line.md lists the keys.
/// `countsLabels` places the labels of all maps as an export does, to count them, which takes its time.
QJsonObject documentJson(SysCarto::MapDocument const& document, bool countsLabels = true);

/// The same for people.
QString documentText(QJsonObject const& report);
