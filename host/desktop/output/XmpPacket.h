#pragma once

#include "host/SysCarto/document/PageTexts.h"

#include <QByteArray>
#include <QVector>

/// A property of a file of some kind: its namespace with the prefix that is usual for it, its name, and its value.
struct XmpProperty {
  QString space, prefix, name, value;
};

/// What a file says about itself as a packet of XMP (ISO 16684-1), in UTF-8; properties of its kind come before those
/// of all. An empty value is left out.
QByteArray xmpPacket(SysCarto::FileInformation const& information, QVector<XmpProperty> const& ofItsKind);
