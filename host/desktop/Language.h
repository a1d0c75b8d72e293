#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The option of every command line that names the language of the texts.
constexpr char languageOption[] = "language";

/// Takes `--language LANG` out of the arguments, wherever it stands before a `--`. Empty where it is not there; a text
/// without characters where the language is missing.
std::optional<QString> takeLanguage(QStringList& arguments);

/// Whether there are texts in the language; where not, that has been told. Needs no application.
bool isLanguage(QString const& language);

/// Translates the texts into that language, or into that of the user's session.
void installLanguage(std::optional<QString> const& language);
