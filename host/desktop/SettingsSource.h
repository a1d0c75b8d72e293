#pragma once

#include "host/SysAdapterUI/FieldSource.h"
#include "host/SysUtility/JsonFields.h"

#include <algorithm>
#include <utility>

/// Settings that a dialog shows in a sheet and changes one by one, before anything of a document is: a copy, which the
/// dialog's end gives to it as a whole.
template <class Settings>
class SettingsSource final : public SysAdapterUI::FieldSource {
public:
  /// Fields of these keys are left out of the sheet.
  explicit SettingsSource(Settings settings, QStringList hidden = {})
      : settings_(std::move(settings)), hidden_(std::move(hidden)) {}

  Settings const& settings() const { return settings_; }

  /// As a document has them.
  QJsonObject json() const {
    SysUtility::JsonWriter writer;
    Settings(settings_).list(writer);
    return writer.json();
  }

  QVector<SysUtility::SheetField> fields() override {
    SysUtility::FieldSheet sheet;
    settings_.list(sheet);
    auto fields = sheet.fields();
    fields.erase(std::remove_if(fields.begin(), fields.end(),
                                [this](auto const& field) { return hidden_.contains(field.key()); }),
                 fields.end());
    return fields;
  }

  QString set(QStringList const& path, SysUtility::NewValue const& value, QString const&) override {
    Settings read = settings_;
    auto const change = SysUtility::changeField([this](SysUtility::Fields& fields) { settings_.list(fields); },
                                                [&](SysUtility::Fields& fields) {
                                                  read = settings_;
                                                  read.list(fields);
                                                },
                                                path, value, [] { return QStringList(); });
    if (change.problem.isEmpty() && change.isChange) settings_ = read;
    return change.problem;
  }

private:
  Settings settings_;
  QStringList const hidden_;
};
