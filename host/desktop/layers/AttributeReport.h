#pragma once

#include <SysCarto/MapDocument.h>

#include <QJsonObject>

#include <functional>

/// Hands on what the features of a layer hold that meet a condition, in the order of the source: `id`, their number
/// there, and `fields`. The layer is named MAP/LAYER, by names or by numbers as in #0. Answers a sentence where that
/// can't be done, or an empty text.
QString reportAttributes(SysCarto::MapDocument const& document, QString const& layer, QString const& condition,
                         std::function<void(QJsonObject const&)> const& take);
