#include "Renderer.h"

#include "host/SysDisplay/SymbolArchive.h"
#include "host/SysUtility/Archive.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <cmath>

namespace SysCarto {

using SysDisplay::Symbol;
using SysUtility::_ptr_t;
using SysUtility::Archive;

namespace {

constexpr int mostClasses = 10000;
constexpr double farthest = 1e300;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Renderer)
};

enum Kind { Simple, UniqueValues, Graduated };

class SimpleRenderer final : public Renderer {
public:
  SimpleRenderer() { classes_.resize(1); }
  SimpleRenderer(_ptr_t<Symbol> const& symbol, QString const& label) {
    SymbolClass all;
    all.label = label;
    all.symbol = symbol;
    classes_.push_back(all);
  }
  int classOf(QString const&, double) const override { return 0; }
  int kind() const override { return Simple; }
  void describe(Archive& archive) override {
    archive.text("label", classes_[0].label, QString());
    describeSymbol(archive, "symbol", classes_[0].symbol);
  }
};

class UniqueValuesRenderer final : public Renderer {
public:
  int classOf(QString const& text, double) const override {
    return text.isNull() ? otherClass() : classByValue_.value(text, otherClass());
  }
  int kind() const override { return UniqueValues; }

  void describe(Archive& archive) override {
    describeField(archive);
    if (archive.reading()) classes_.clear();
    archive.list("classes", ownClasses(), mostClasses, [this](Archive& item, int i) {
      if (item.reading()) classes_.emplace_back();
      SymbolClass& one = classes_[i];
      item.texts("values", one.values);
      item.text("label", one.label, one.values.join(QLatin1String(", ")));
      describeSymbol(item, "symbol", one.symbol);
      for (QString const& value : one.values) {
        if (item.reading() && classByValue_.contains(value))
          item.fail("values", Texts::tr("“%1” is in two classes").arg(value.left(64)));
        classByValue_.insert(value, i);
      }
    });
    describeOthers(archive);
  }

private:
  QHash<QString, int> classByValue_;
};

class GraduatedRenderer final : public Renderer {
public:
  int classOf(QString const&, double number) const override {
    auto const begin = classes_.begin(), end = begin + ownClasses();
    if (std::isnan(number)) return otherClass();
    auto const next =
        std::upper_bound(begin, end, number, [](double n, SymbolClass const& c) { return n < c.minimum; });
    return next == begin ? otherClass() : static_cast<int>(next - begin) - 1;
  }
  int kind() const override { return Graduated; }

  void describe(Archive& archive) override {
    describeField(archive);
    if (archive.reading()) classes_.clear();
    archive.list("classes", ownClasses(), mostClasses, [this](Archive& item, int i) {
      if (item.reading()) classes_.emplace_back();
      SymbolClass& one = classes_[i];
      item.number("minimum", one.minimum, -farthest, farthest);
      item.text("label", one.label, QString());
      describeSymbol(item, "symbol", one.symbol);
      if (i > 0 && !(one.minimum > classes_[i - 1].minimum))
        item.fail("minimum", Texts::tr("is not above that of the class before"));
    });
    describeOthers(archive);
  }
};

}  // namespace

Renderer::~Renderer() = default;

void Renderer::describeField(Archive& archive) {
  archive.text("field", field_);
  if (field_.isEmpty()) archive.fail("field", Texts::tr("names no field"));
}

void Renderer::describeOthers(Archive& archive) {
  SymbolClass others;
  if (hasOthers_) others = classes_.back();
  describeOptionalSymbol(archive, "defaultSymbol", others.symbol);
  archive.text("defaultLabel", others.label, QString());
  if (!archive.reading()) return;
  hasOthers_ = others.symbol != nullptr;
  if (hasOthers_) classes_.push_back(others);
}

std::unique_ptr<Renderer> makeSimpleRenderer(_ptr_t<Symbol> const& symbol, QString const& label) {
  return std::make_unique<SimpleRenderer>(symbol, label);
}

void describeRenderer(Archive& archive, char const* key, std::unique_ptr<Renderer>& renderer) {
  archive.object(key, [&](Archive& item) {
    int kind = renderer ? renderer->kind() : Simple;
    item.choice("type", kind, {{Simple, "simple"}, {UniqueValues, "uniqueValues"}, {Graduated, "graduated"}});
    if (!item.ok()) return;
    if (item.reading()) {
      if (kind == UniqueValues)
        renderer = std::make_unique<UniqueValuesRenderer>();
      else if (kind == Graduated)
        renderer = std::make_unique<GraduatedRenderer>();
      else
        renderer = std::make_unique<SimpleRenderer>();
    }
    renderer->describe(item);
  });
}

}  // namespace SysCarto
