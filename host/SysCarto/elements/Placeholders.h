#pragma once

#include <SysCarto/Export.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace SysCarto {

class Element;

/// What stands in brackets in the texts of a page and is filled in while they are drawn: `[scale]`, `[date:yyyy]`. The
/// elements of one container share one object.
class SYSCARTO_EXPORT Placeholders {
public:
  /// What a name stands for, with what follows a colon; nothing where it stands for nothing and is left as written.
  using Source = std::function<std::optional<QString>(QString const& name, QString const& argument)>;

  explicit Placeholders(Source source) : source_(std::move(source)) {}

  /// What was filled in is no more; the texts stand as written.
  void end() { source_ = nullptr; }

  QString filled(QString const& text) const;

  static QStringList names();

  /// Those in a text that have none of these names, brackets included.
  static QStringList unknownIn(QString const& text);

private:
  Source source_;
};

/// Gives them to a text, or to the texts of a group. Other elements have no use for them.
void usePlaceholders(Element& element, std::shared_ptr<Placeholders> const& placeholders);

}  // namespace SysCarto
