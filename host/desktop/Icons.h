#pragma once

#include <QIcon>
#include <QString>

/// An icon out of icons/, by its name without the suffix. It is drawn in the text colour of the application's palette
/// of the moment, at any size and device pixel ratio. A null icon where there is none of that name.
QIcon loadIcon(QString const& name);
