#pragma once

#include <QString>
#include <QStringList>

#include <tuple>

namespace SysCarto {

/// What a document says about itself, all of it perhaps nothing.
struct DocumentInformation {
  QString title, author, subject;
  QStringList keywords;
  QString language;  ///< of its texts: a tag of BCP 47, as in “de-CH”

  bool operator==(DocumentInformation const& o) const {
    return std::tie(title, author, subject, keywords, language) ==
           std::tie(o.title, o.author, o.subject, o.keywords, o.language);
  }
  bool operator!=(DocumentInformation const& o) const { return !(*this == o); }
};

}  // namespace SysCarto
