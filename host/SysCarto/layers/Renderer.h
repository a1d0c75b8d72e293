#pragma once

#include <SysCarto/Export.h>
#include <SysDisplay/Symbol.h>

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace SysUtility {
class Archive;
}

namespace SysCarto {

/// One kind of features of a layer, as a legend lists it.
struct SymbolClass {
  QString label;
  QStringList values;  ///< of the field, as texts: for unique values
  double minimum = 0;  ///< of the field: for graduated symbols, from here to the next class
  SysUtility::_ptr_t<SysDisplay::Symbol> symbol;
};

/// Which symbol a feature is drawn with, by the value of a field. The class for all other features is the last one.
class SYSCARTO_EXPORT Renderer {
public:
  virtual ~Renderer();

  /// The field that decides; empty where none does.
  QString const& field() const { return field_; }

  /// The class of a value, −1 for none. `text` is null, and `number` not a number, for a value that is missing.
  virtual int classOf(QString const& text, double number) const = 0;

  std::vector<SymbolClass> const& classes() const { return classes_; }

protected:
  friend SYSCARTO_EXPORT void describeRenderer(SysUtility::Archive&, char const*, std::unique_ptr<Renderer>&);

  virtual int kind() const = 0;
  virtual void describe(SysUtility::Archive& archive) = 0;
  void describeField(SysUtility::Archive& archive);
  void describeOthers(SysUtility::Archive& archive);
  int otherClass() const { return hasOthers_ ? static_cast<int>(classes_.size()) - 1 : -1; }
  int ownClasses() const { return static_cast<int>(classes_.size()) - (hasOthers_ ? 1 : 0); }

  QString field_;
  std::vector<SymbolClass> classes_;
  bool hasOthers_ = false;
};

/// A renderer with one symbol for all features.
SYSCARTO_EXPORT std::unique_ptr<Renderer> makeSimpleRenderer(SysUtility::_ptr_t<SysDisplay::Symbol> const& symbol,
                                                             QString const& label = QString());

/// Describes a renderer that must be there, as a nested object with its kind in the field "type".
SYSCARTO_EXPORT void describeRenderer(SysUtility::Archive& archive, char const* key,
                                      std::unique_ptr<Renderer>& renderer);

}  // namespace SysCarto
