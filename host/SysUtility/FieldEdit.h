#pragma once

#include "host/SysUtility/FieldSheet.h"

#include <QJsonObject>

namespace SysUtility {

// Changes of one field of something that lists its fields. A path is keys, and numbers for the entries of lists, the
// outermost first; “-” in place of a number is a new entry at the end. A null value removes the field or the entry.

/// What a person has typed for a field, null where it is not known: JSON, or the text itself where a text is asked for.
SYSUTILITY_EXPORT QJsonValue valueOf(QString const& typed, SheetField const* field);

/// The value with what is null in its objects left out, as a document has it.
SYSUTILITY_EXPORT QJsonValue withoutNulls(QJsonValue const& value);

/// Makes a field's new value of the one that it has, undefined for none.
using NewValue = std::function<QJsonValue(QJsonValue const& now)>;

struct FieldChange {
  QString problem;                ///< why the value can't be taken; empty where it can
  bool isChange = false;          ///< whether anything was read
  char const* caption = nullptr;  ///< of the field that is changed, or of one that it lies in; a text of “Fields”
};

/// Changes a field as whoever edits the document would. `list` names the fields as they are, and `read` reads all of
/// them, perhaps twice; the last time counts, where there is no problem. What must be there within an object that is
/// new is made up, an attribute of those given (`JsonReader::complete`).
SYSUTILITY_EXPORT FieldChange changeField(Fields::Describe const& list, Fields::Describe const& read,
                                          QStringList const& path, NewValue const& value,
                                          std::function<QStringList()> const& attributes);

}  // namespace SysUtility
