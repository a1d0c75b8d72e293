#include "ElementContainer.h"

#include <SysCarto/Element.h>

namespace SysCarto {

struct Element::Private {
  QString name;
  ElementHandle handle = 0;
  ElementContainer* container = nullptr;  // in which it lies
  bool label = false;
};

Element::Element() : d(std::make_unique<Private>()) {}
Element::Element(Element const& other) : CRef(other), d(std::make_unique<Private>()) {
  d->name = other.d->name;
  d->handle = other.d->handle;
}
Element::~Element() = default;

ElementHandle Element::GetHandle() const { return d->handle; }
void Element::setHandle(ElementHandle handle) { d->handle = handle; }

QString Element::GetName() const { return d->name; }
void Element::SetName(QString const& name) {
  if (name == d->name) return;
  d->name = name;
  changed();
}

bool Element::isPlaced() const { return d->container != nullptr; }
void Element::setContainer(ElementContainer* container) { d->container = container; }

bool Element::isLabel() const { return d->label; }
void Element::becomeLabel() { d->label = true; }

void Element::changed() {
  if (d->container) d->container->elementChanged();
}

void Element::moved() {
  if (d->container) d->container->elementMoved();
}

}  // namespace SysCarto
