#pragma once

#include <QStringList>

#include <optional>

/// Of an option that is given more than once: the last value, all others being dropped, or the first, with the others
/// left where they are.
enum class OptionValue { Last, First };

/// Takes `--NAME VALUE` or `--NAME=VALUE` out of the arguments, wherever it stands before a `--`. Empty where it is not
/// there; a text without characters where the value is missing.
std::optional<QString> takeOption(QStringList& arguments, char const* name, OptionValue which = OptionValue::Last);

/// Takes `--NAME` out of the arguments, wherever it stands before a `--`. Answers whether it was there.
bool takeFlag(QStringList& arguments, char const* name);
