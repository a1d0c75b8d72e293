#pragma once

#include <QStringList>

#include <optional>

/// Takes `--NAME VALUE` or `--NAME=VALUE` out of the arguments, wherever it stands before a `--`. Empty where it is not
/// there; a text without characters where the value is missing.
std::optional<QString> takeOption(QStringList& arguments, char const* name);
