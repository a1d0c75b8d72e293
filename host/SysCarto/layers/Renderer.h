#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/Symbol.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace SysUtility {
class Fields;
}

namespace SysCarto {

/// One kind of features of a layer, as a legend lists it.
struct SymbolClass {
  QString label;
  QStringList values;  ///< of the field, as texts: for unique values
  double minimum = 0;  ///< of the field: for graduated symbols, from here to the next class
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol;
};

/// What a document stores of a renderer.
struct SYSCARTO_EXPORT RendererSettings {
  enum class Kind { Simple, UniqueValues, Graduated };

  Kind kind = Kind::Simple;
  QString field;                     ///< that decides; empty where none does
  std::vector<SymbolClass> classes;  ///< a simple renderer has one
  SymbolClass others;                ///< for all features that are in none of the classes; drawn with a symbol alone

  void list(SysUtility::Fields& fields);

  /// Whether every feature is in the same class by both, whatever the classes look like.
  bool classifiesAs(RendererSettings const& other) const;
};

/// The JSON of a renderer as one of another kind: the symbol that drew all features, or the most of them, goes on
/// drawing those that are in no class.
SYSCARTO_EXPORT QJsonObject rendererAs(QJsonObject const& renderer, QString const& kind);

/// Which symbol a feature is drawn with, by the value of a field.
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

protected:
  explicit Renderer(RendererSettings settings);
  int otherClass() const { return settings_.others.symbol ? static_cast<int>(settings_.classes.size()) : -1; }

private:
  RendererSettings const settings_;
  std::vector<SymbolClass> classes_;
};

SYSCARTO_EXPORT std::unique_ptr<Renderer> makeRenderer(RendererSettings const& settings);

/// A renderer with one symbol for all features.
SYSCARTO_EXPORT std::unique_ptr<Renderer> makeSimpleRenderer(SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol,
                                                             QString const& label = QString());

}  // namespace SysCarto
