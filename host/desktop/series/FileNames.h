#pragma once

#include "Coverage.h"

/// The paths of pages that are files of their own.
class FileNames {
  Q_DECLARE_TR_FUNCTIONS(FileNames)

public:
  /// Whether a path has placeholders that stand for something else on each page: `[page]`, `[page:name]`,
  /// `[field:name]`.
  static bool isPattern(QString const& path);

  /// A path for each page of the coverage. What a field holds is one part of a path and no more, whatever it is. Where
  /// a field or a placeholder is unknown, or two of the chosen pages would have one file, `problem` is a sentence.
  static QStringList of(Coverage const& coverage, QString const& pattern, std::vector<int> const& chosen,
                        QString& problem);

  /// A text as a part of a file's name that every system takes.
  static QString safe(QString const& text);
};
