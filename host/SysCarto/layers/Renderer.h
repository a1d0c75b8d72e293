#pragma once

#include "host/SysCarto/layers/ScaleRange.h"

#include <SysCarto/Export.h>
#include <SysDisplay/Symbol.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <vector>

namespace SysUtility {
class Fields;
}

namespace SysCarto {

/// What of a symbol follows the features: expressions on their attributes as in OGR SQL, empty for none. Where one has
/// no value the symbol keeps its own.
struct SymbolVariation {
  QString size;   ///< of a marker, or the width of a line, in points
  QString color;  ///< a text like #rrggbb
  QString angle;  ///< of a marker, in degrees counterclockwise

  bool operator==(SymbolVariation const& other) const {
    return size == other.size && color == other.color && angle == other.angle;
  }
};

/// One kind of features of a layer, as a legend lists it.
struct SymbolClass {
  QString label;
  QStringList values;  ///< of the field, as texts: for unique values
  double minimum = 0;  ///< of the field: for graduated symbols, from here to the next class
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol;
  SymbolVariation variation = {};

  // Of a rule.
  QString filter = {};     ///< a condition as of a source; empty for all features
  ScaleRange scales = {};  ///< at which it draws
  bool isInLegend = true;
};

/// How large markers are by a number, and how a legend shows that.
struct ProportionalSettings {
  enum class Scaling { Area, Flannery, Diameter };
  enum class Shape { Nested, Rows };

  double reference = 0;   ///< the number at which a marker has its symbol's size; 0 for the largest there is
  double smallestPt = 1;  ///< no marker is smaller
  Scaling scaling = Scaling::Area;
  Shape shape = Shape::Nested;
  QVector<double> told;  ///< the numbers in a legend; empty for round ones

  /// The size of a marker in points, where that of `reference` has `sizePt`.
  double sizeOf(double number, double reference, double sizePt) const;
};

/// What a document stores of a renderer.
struct SYSCARTO_EXPORT RendererSettings {
  enum class Kind { Simple, UniqueValues, Graduated, Rules, Proportional };

  Kind kind = Kind::Simple;
  QString field;                     ///< that decides; empty where none does
  std::vector<SymbolClass> classes;  ///< a simple and a proportional renderer have one
  SymbolClass others;                ///< for all features that are in none of the classes; drawn with a symbol alone
  bool allMatch = false;             ///< whether all rules that fit a feature draw it, and not the first alone
  ProportionalSettings proportional;

  void list(SysUtility::Fields& fields);

  /// Whether what is read of every feature is the same by both, whatever the classes look like.
  bool classifiesAs(RendererSettings const& other) const;
};

/// The JSON of a renderer as one of another kind: the symbol that drew all features, or the most of them, goes on
/// drawing those that are in no class.
SYSCARTO_EXPORT QJsonObject rendererAs(QJsonObject const& renderer, QString const& kind);

/// The JSON of the symbol with which a new class or rule of a renderer begins: that of the last one, or else that of
/// the others. Undefined where there is none.
SYSCARTO_EXPORT QJsonValue symbolForNewClass(QJsonObject const& renderer);

/// One property of the symbol of a class that follows the features.
struct VariedProperty {
  enum class Kind { Size, Color, Angle };
  int symbolClass;
  Kind kind;
  QString expression;
};

/// Which symbol a feature is drawn with, by the value of a field. Features of rules are sorted by their conditions.
class SYSCARTO_EXPORT Renderer {
public:
  virtual ~Renderer();
  Renderer(Renderer const&) = delete;
  Renderer& operator=(Renderer const&) = delete;

  RendererSettings const& settings() const { return settings_; }

  /// The field that decides; empty where none does.
  QString const& field() const { return settings_.field; }

  /// The class of a value, −1 for none. `text` is null, and `number` not a number, for a value that is missing.
  virtual int classOf(QString const& text, double number) const = 0;

  /// The class for all other features is the last one.
  std::vector<SymbolClass> const& classes() const { return classes_; }

  /// What of the symbols follows the features; their values are read with these.
  std::vector<VariedProperty> const& varied() const { return varied_; }

protected:
  explicit Renderer(RendererSettings settings);
  int otherClass() const { return settings_.others.symbol ? static_cast<int>(settings_.classes.size()) : -1; }

private:
  RendererSettings const settings_;
  std::vector<SymbolClass> classes_;
  std::vector<VariedProperty> varied_;
};

SYSCARTO_EXPORT std::unique_ptr<Renderer> makeRenderer(RendererSettings const& settings);

/// A renderer with one symbol for all features.
SYSCARTO_EXPORT std::unique_ptr<Renderer> makeSimpleRenderer(SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol,
                                                             QString const& label = QString());

}  // namespace SysCarto
