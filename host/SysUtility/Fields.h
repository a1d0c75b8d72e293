#pragma once

#include <SysUtility/Export.h>

#include <QCoreApplication>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <limits>
#include <optional>
#include <variant>

namespace SysUtility {

/// What the numbers of a field count. A map unit is metres, degrees or whatever the map's coordinate system has; an
/// element that lies on a map is measured in those, too.
enum class Unit { None, Point, Centimetre, Degree, Percent, LineWidth, ScaleDenominator, MapUnit };

/// The lowest and the highest value of a number, both allowed.
struct Range {
  double min;
  double max;
  Unit unit = Unit::None;
};

/// What a text is to the person who enters it; it also sets how long the text may be. A picture is a data URI.
enum class TextKind { Line, Lines, Color, File, Svg, Picture, Attribute, Condition, CoordinateSystem };

/// A fixed count of numbers that belong together: x and y, or xmin, ymin, xmax and ymax.
enum class NumbersKind { Point, Offset, Rectangle };

/// One field of a stored thing: its key in a document, and what a person reads of it. `caption` and `help` are English
/// source texts of the translation context "Fields". What may stand in several places, or in itself, has one name there
/// for its `type`: that of an object, or of each object of a list. Without one the key is the name.
struct Field {
  char const* key;
  char const* caption;
  char const* help;
  char const* type = nullptr;
};

/// One value of a field that has a few: the number in the program, the name in a document, and the caption as in
/// `Field`.
struct Choice {
  template <class Value>
  constexpr Choice(Value value, char const* name, char const* caption)
      : value(static_cast<int>(value)), name(name), caption(caption) {}
  int value;
  char const* name;
  char const* caption;
};

/// Several choices, borrowed from a table that outlives them.
struct Choices {
  template <int count>
  constexpr Choices(Choice const (&table)[count]) : first(table), last(table + count) {}
  Choices(QVector<Choice> const& table) : first(table.constBegin()), last(table.constEnd()) {}
  Choice const* begin() const { return first; }
  Choice const* end() const { return last; }

  Choice const* first;
  Choice const* last;
};

/// How many objects or numbers a list holds.
struct Counts {
  int min;
  int max;
};

/// What a single value of a field may be.
struct ValueRules {
  bool isRequired = true;
  QJsonValue byDefault = QJsonValue::Undefined;  ///< of a value that may be missing
  Range range{-std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};  ///< of each number
  TextKind textKind = TextKind::Line;
  NumbersKind numbersKind = NumbersKind::Point;
  bool isFilled = false;                              ///< a text is more than blanks
  bool isDerived = false;                             ///< the default is made of other fields
  int minPoints = 0;                                  ///< of a list of coordinate pairs
  Counts counts{0, std::numeric_limits<int>::max()};  ///< of a list of numbers
};

/// As many numbers as their kind says.
struct NumbersRef {
  double* first;
};

/// Any count of numbers that each stand for themselves.
struct NumberListRef {
  QVector<double>* numbers;
};

/// The value that a visitor looks at or fills in; its type is the kind of the field. A vector is a list of coordinate
/// pairs.
using ValueRef =
    std::variant<double*, int*, bool*, QString*, QStringList*, NumbersRef, QVector<double>*, NumberListRef>;

/// A visitor of the fields of stored things.
///
/// Whatever is stored has a plain struct of its settings with one function that names the fields in turn:
///
///     void PaperSettings::list(Fields& fields) {
///       fields.number({"width", QT_TRANSLATE_NOOP("Fields", "Width"), …}, widthCm, {0.1, 1000, Unit::Centimetre});
///       fields.flag({"landscape", …}, landscape, false);
///     }
///
/// A reader fills the struct from a document, a writer takes a copy of it to one, and others only look at which fields
/// there are, so a field is named once. Where a call gives a default, the field may be missing, and writing leaves it
/// out when it has that value.
///
/// The first problem is kept, with the path of its field; after it no call changes a value.
class SYSUTILITY_EXPORT Fields {
  Q_DECLARE_TR_FUNCTIONS(Fields)

public:
  using Describe = std::function<void(Fields&)>;

  Fields() = default;
  virtual ~Fields();
  Fields(Fields const&) = delete;
  Fields& operator=(Fields const&) = delete;

  /// Whether the values are being filled in, and not only looked at.
  virtual bool isReading() const = 0;

  /// The first problem, with its path; empty while all is well.
  virtual QString error() const = 0;
  bool ok() const { return error().isEmpty(); }

  /// Reports a problem with a field that is there but does not make sense, or with the whole object (`key` null).
  virtual void fail(char const* key, QString const& what) = 0;

  /// Says something about the value of a field that was named just now: it can be stored, but may not do what was
  /// meant. Only those who show fields care.
  virtual void remark(char const* key, QString const& what);

  // Numbers outside their range, infinite or not a number are problems.

  void number(Field const& field, double& number, Range const& range, std::optional<double> byDefault = {}) {
    visit(field, &number, byDefault, range);
  }
  void integer(Field const& field, int& number, int min, int max, std::optional<int> byDefault = {}) {
    visit(field, &number, byDefault, {double(min), double(max)});
  }
  void flag(Field const& field, bool& flag, std::optional<bool> byDefault = {}) { visit(field, &flag, byDefault); }
  void text(Field const& field, QString& text, TextKind kind, std::optional<QString> const& byDefault = {}) {
    visit(field, &text, byDefault, ValueRules().range, kind);
  }

  /// A text that must be there and hold more than blanks.
  void filledText(Field const& field, QString& text, TextKind kind) {
    ValueRules rules;
    rules.textKind = kind;
    rules.isFilled = true;
    value(field, &text, rules);
  }

  /// A text that has another one, made of other fields, where it is missing.
  void derivedText(Field const& field, QString& text, TextKind kind, QString const& derived) {
    ValueRules rules;
    rules.isRequired = false;
    rules.byDefault = derived;
    rules.isDerived = true;
    rules.textKind = kind;
    value(field, &text, rules);
  }

  /// A number that may be missing where it says what other fields say. Writing leaves it out where it is that number.
  void derivedNumber(Field const& field, double& number, Range const& range, std::optional<double> derived) {
    ValueRules rules;
    rules.isRequired = false;
    if (derived) rules.byDefault = *derived;
    rules.isDerived = true;
    rules.range = range;
    value(field, &number, rules);
  }

  /// A list of texts; a missing list is an empty one.
  void texts(Field const& field, QStringList& texts) {
    ValueRules rules;
    rules.isRequired = false;
    value(field, &texts, rules);
  }

  /// `numbers` holds as many as the kind says.
  void numbers(Field const& field, double* numbers, NumbersKind kind, Range const& range) {
    ValueRules rules;
    rules.range = range;
    rules.numbersKind = kind;
    value(field, NumbersRef{numbers}, rules);
  }

  /// A list of coordinate pairs, stored flat: [x1, y1, x2, y2, …].
  void coordinates(Field const& field, QVector<double>& coordinates, int minPoints, Range const& range) {
    ValueRules rules;
    rules.range = range;
    rules.minPoints = minPoints;
    value(field, &coordinates, rules);
  }

  /// A list of numbers. One that may be empty may be missing.
  void numberList(Field const& field, QVector<double>& numbers, Counts const& counts, Range const& range) {
    ValueRules rules;
    rules.isRequired = counts.min > 0;
    rules.range = range;
    rules.counts = counts;
    value(field, NumberListRef{&numbers}, rules);
  }

  template <class Value>
  void choice(Field const& field, Value& value, Choices const& choices, std::optional<Value> byDefault = {}) {
    int number = static_cast<int>(value);
    choose(field, number, choices, byDefault ? std::optional<int>(static_cast<int>(*byDefault)) : std::nullopt);
    value = static_cast<Value>(number);
  }

  /// The choice of what the object is, which decides on its other fields. `describe` names those of the kind that it
  /// receives.
  virtual void variant(Field const& field, int& kind, Choices const& kinds, std::function<void(int)> const& describe);

  /// A nested object. It must be there.
  void object(Field const& field, Describe const& describe) { nest(field, std::nullopt, describe); }

  /// A nested object that may be missing. `present` says whether it is there; reading answers whether it was.
  bool optionalObject(Field const& field, bool present, Describe const& describe) {
    return nest(field, present, describe);
  }

  /// A list of nested objects. One that may be empty may be missing. `describe` receives each object's fields and its
  /// entry, a new one when reading.
  template <class List>
  void list(Field const& field, List& entries, Counts const& counts,
            std::function<void(Fields&, typename List::value_type&, int)> const& describe) {
    if (isReading() && ok()) entries.clear();
    objects(field, static_cast<int>(entries.size()), counts, [&](Fields& fields, int index) {
      if (index == static_cast<int>(entries.size())) entries.push_back({});
      describe(fields, entries[index], index);
    });
  }
  template <class List>
  void list(Field const& field, List& entries, int max,
            std::function<void(Fields&, typename List::value_type&, int)> const& describe) {
    list(field, entries, Counts{0, max}, describe);
  }

protected:
  virtual void value(Field const& field, ValueRef value, ValueRules const& rules) = 0;
  virtual void choose(Field const& field, int& value, Choices const& choices, std::optional<int> byDefault) = 0;
  /// Without `present` the object must be there.
  virtual bool nest(Field const& field, std::optional<bool> present, Describe const& describe) = 0;
  virtual void objects(Field const& field, int count, Counts const& counts,
                       std::function<void(Fields&, int)> const& describe) = 0;

private:
  template <class Value>
  void visit(Field const& field, Value* visited, std::optional<Value> const& byDefault,
             Range const& range = ValueRules().range, TextKind textKind = TextKind::Line) {
    ValueRules rules;
    rules.isRequired = !byDefault;
    rules.range = range;
    rules.textKind = textKind;
    if (byDefault) rules.byDefault = *byDefault;
    value(field, visited, rules);
  }
};

/// How many numbers, and how many characters at most.
constexpr int countOf(NumbersKind kind) { return kind == NumbersKind::Rectangle ? 4 : 2; }
constexpr int maxCharacters(TextKind kind) {
  constexpr int mebi = 1024 * 1024;
  return kind == TextKind::Picture ? 32 * mebi : kind == TextKind::Svg ? 2 * mebi : 16384;
}

}  // namespace SysUtility
