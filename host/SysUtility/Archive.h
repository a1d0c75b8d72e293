#pragma once

#include <SysUtility/Export.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <initializer_list>
#include <limits>
#include <memory>
#include <optional>

namespace SysUtility {

/// A name in a document for a value of an enumeration.
struct ChoiceName {
  int value;
  char const* name;
};

/// One JSON object, being read or being written.
///
/// An object of the program is described once, by a function that names its fields in turn; the same function reads it
/// from JSON and writes it there, so that the two can't drift apart:
///
///     void describe(Archive& archive, Paper& paper) {
///       archive.number("width", paper.widthCm, 0.1, 1000.0);
///       archive.flag("landscape", paper.landscape, false);
///     }
///
/// Reading checks every field. The first problem stops it: it is kept with the path of the field ("maps[0].layers[2]
/// .symbol.width"), every later call changes nothing, and `ok` answers false. A field that the description never named
/// is reported as a warning and is otherwise ignored. Where a call gives a default, the field may be missing, and
/// writing leaves it out when it has that value.
///
/// Writing checks, too: what could not be read again (a number out of range, a choice without a name) is a problem, and
/// whoever writes asks `ok` before the old file gives way.
class SYSUTILITY_EXPORT Archive {
public:
  using Describe = std::function<void(Archive&)>;

  /// Of a text: more than anyone writes on a map, and little enough to draw.
  static constexpr int mostCharacters = 16384;

  /// An archive that writes, from nothing.
  Archive();

  /// An archive that reads `source`.
  explicit Archive(QJsonObject source);
  ~Archive();
  Archive(Archive const&) = delete;
  Archive& operator=(Archive const&) = delete;

  bool reading() const;
  bool ok() const;

  /// The first problem, with its path; empty while all is well.
  QString error() const;

  /// The paths of fields that nobody asked for, at most 100. The top level is complete once it has been described.
  QStringList warnings() const;

  /// What has been written so far.
  QJsonObject json() const;

  /// True where the field exists; it then counts as asked for. Always true when writing.
  bool has(char const* key);

  // Fields. Numbers outside their range, infinite or not a number are problems.

  void number(char const* key, double& value, double min, double max);
  void number(char const* key, double& value, double min, double max, double byDefault);
  void integer(char const* key, int& value, int min, int max);
  void integer(char const* key, int& value, int min, int max, int byDefault);
  void flag(char const* key, bool& value);
  void flag(char const* key, bool& value, bool byDefault);
  /// A text of at most `most` characters.
  void text(char const* key, QString& value, int most = mostCharacters);
  void text(char const* key, QString& value, QString const& byDefault);

  /// A list of texts; a missing list is an empty one.
  void texts(char const* key, QStringList& values);

  /// A list of exactly `count` numbers: corners, a point, a size.
  void numbers(char const* key, double* values, int count, double min, double max);

  /// A list of coordinate pairs, stored flat: [x1, y1, x2, y2, …].
  void coordinates(char const* key, QVector<double>& values);

  template <class Enumeration>
  void choice(char const* key, Enumeration& value, std::initializer_list<ChoiceName> names) {
    int number = static_cast<int>(value);
    choiceValue(key, number, names, std::numeric_limits<int>::min());
    value = static_cast<Enumeration>(number);
  }
  template <class Enumeration>
  void choice(char const* key, Enumeration& value, std::initializer_list<ChoiceName> names, Enumeration byDefault) {
    int number = static_cast<int>(value);
    choiceValue(key, number, names, static_cast<int>(byDefault));
    value = static_cast<Enumeration>(number);
  }

  /// A nested object. It must be there.
  void object(char const* key, Describe const& describe);

  /// A nested object that may be missing. When writing, `present` says whether it is written; after reading, the answer
  /// says whether it was there.
  bool optionalObject(char const* key, bool present, Describe const& describe);

  /// A list of nested objects; a missing list is an empty one. When writing, `count` objects are written; when reading,
  /// as many as the document holds, at most `most`. `describe` receives each object's archive and its number.
  void list(char const* key, int count, int most, std::function<void(Archive&, int)> const& describe);

  /// Reports a problem with a field that is there but does not make sense, or with the whole object (`key` null).
  /// Keeps only the first.
  void fail(char const* key, QString const& what);

private:
  struct Shared;
  Archive(QJsonObject source, QString path, std::shared_ptr<Shared> shared);

  void choiceValue(char const* key, int& value, std::initializer_list<ChoiceName> names, int byDefault);
  template <class Value>
  bool settled(char const* key, Value& value, Value const& byDefault);
  QJsonValue take(char const* key, bool required);
  std::optional<QJsonArray> takeList(char const* key, bool required);
  std::optional<QVector<double>> takeNumbers(char const* key, QJsonArray const& list, double min, double max);
  void put(char const* key, QJsonValue const& value);
  void putNumbers(char const* key, double const* values, int count, double min, double max);
  QJsonObject describeChild(QJsonObject const& source, QString const& path, Describe const& describe);
  void failAt(QString const& path, QString const& what);
  QString pathOf(QString const& name) const;
  QString pathOf(char const* key, int number) const;
  QStringList unknownFields() const;

  QJsonObject object_;
  QString path_;
  QSet<QString> asked_;
  std::shared_ptr<Shared> shared_;
};

}  // namespace SysUtility
