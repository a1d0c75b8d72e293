#pragma once

#include "host/SysCarto/projection/GlobeBox.h"

#include <QString>

#include <vector>

namespace SysCarto {

/// A coordinate system of PROJ's database that a document may name.
struct KnownSystem {
  QString code;  ///< as a document names it: "EPSG:3035"
  QString name;
  QString area;  ///< in which it is meant to be used, in words
  GlobeBox use;  ///< the same in degrees; of nothing where it isn't known or not on the Earth
  bool isGeographic;
  bool isDeprecated;
};

/// What is looked for among the systems.
struct SystemQuery {
  enum class Kind { Any, Projected, Geographic };

  QString words;  ///< of the name, the code or the area, in any order; all have to be there. Empty for all systems
  Kind kind = Kind::Any;
  bool hasDeprecated = false;
  GlobeBox extent;  ///< systems that are meant for all of it come before others that match as well
};

/// The coordinate systems that PROJ knows, geographic in two dimensions and projected. Read once; then only read, from
/// any thread.
class SYSCARTO_EXPORT SystemCatalogue {
public:
  /// Waits until the database is read, which takes about a second.
  static SystemCatalogue const& instance();

  /// Begins to read beside what else is done.
  static void readAhead();

  /// Whether `instance` answers at once.
  static bool isRead();

  ~SystemCatalogue();
  SystemCatalogue(SystemCatalogue const&) = delete;
  SystemCatalogue& operator=(SystemCatalogue const&) = delete;

  std::vector<KnownSystem> const& systems() const { return systems_; }

  /// Without regard to case; null where there is none.
  KnownSystem const* find(QString const& code) const;

  /// The numbers of the systems that match, the one that is most likely meant first.
  std::vector<int> search(SystemQuery const& query) const;

private:
  SystemCatalogue();
  void read();
  void index();

  struct Texts;  // of a system, as words are looked for in them
  std::vector<KnownSystem> systems_;
  std::vector<Texts> texts_;
};

}  // namespace SysCarto
