#include <SysCarto/Element.h>

namespace SysCarto {

struct Element::Private {
  QString name;
  ElementHandle handle = 0;
  bool placed = false;
};

Element::Element() : d(std::make_unique<Private>()) {}
Element::Element(Element const& other) : CRef(other), d(std::make_unique<Private>(*other.d)) { d->placed = false; }
Element::~Element() = default;

ElementHandle Element::GetHandle() const { return d->handle; }
void Element::setHandle(ElementHandle handle) { d->handle = handle; }

QString Element::GetName() const { return d->name; }
void Element::SetName(QString const& name) { d->name = name; }

bool Element::isPlaced() const { return d->placed; }
void Element::setPlaced(bool placed) { d->placed = placed; }

}  // namespace SysCarto
