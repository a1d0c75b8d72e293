#pragma once

#include "host/SysUtility/FieldEdit.h"

#include <optional>

class QWidget;

namespace SysAdapterUI {

/// Where a property sheet has its fields from.
class FieldSource {
public:
  virtual ~FieldSource() = default;

  /// The fields that all things shown have in common.
  virtual QVector<SysUtility::SheetField> fields() = 0;

  /// What a text of the kind `TextKind::Attribute` may name.
  virtual QStringList attributes() const { return {}; }

  /// What else the text at a path is likely to be.
  virtual QStringList namesFor(QStringList const& /*path*/) const { return {}; }

  /// Where one of these fields lies in the thing shown: its key, where that is not deeper in it.
  virtual QStringList placeOf(SysUtility::SheetField const& field) const { return {field.key()}; }

  /// Whether a person can choose or write a text with more help than a line gives: a coordinate system, a condition.
  virtual bool canChoose(SysUtility::TextKind kind) const { return kind == SysUtility::TextKind::CoordinateSystem; }

  /// Lets a person do so; empty where nothing is chosen.
  virtual std::optional<QString> choose(QStringList const& /*path*/, QString const& /*now*/, QWidget* /*parent*/) {
    return std::nullopt;
  }

  /// Gives a field of all things shown another value. Answers a problem, with nothing changed, or an empty text.
  /// Changes with the same `joining` that follow each other quickly may be one; an empty text is joined with none.
  virtual QString set(QStringList const& path, SysUtility::NewValue const& value, QString const& joining) = 0;
};

}  // namespace SysAdapterUI
