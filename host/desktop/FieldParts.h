#pragma once

#include "host/SysUtility/FieldTree.h"

#include <QStringList>

/// A type of object, by its name, with its fields.
struct FieldType {
  QString name;
  QVector<SysUtility::FieldInfo> fields;
};

/// The types of all objects that lie in one, the object itself first, each once.
QVector<FieldType> typesOf(QString const& name, QVector<SysUtility::FieldInfo> const& fields);

/// Fields that an object has when it is of one of these kinds.
struct FieldPart {
  QStringList kinds;
  QVector<SysUtility::FieldInfo> fields;
  QString type;  ///< the object is then like one of this type, and `fields` is empty; empty where there is no such type
};

/// The fields of an object: those that it always has, the choice of its kind among them, and what its kinds add. Kinds
/// that add the same share a part, and one that adds nothing has none. `types` are those that a part may name.
struct FieldParts {
  QString kindKey;
  QVector<SysUtility::FieldInfo> always;
  QVector<FieldPart> ofKinds;
};
FieldParts partsOf(QVector<SysUtility::FieldInfo> const& fields, QVector<FieldType> const& types);

QStringList namesOf(QVector<SysUtility::Choice> const& choices);
