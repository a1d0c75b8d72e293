#include "ElementContainer.h"
#include "ElementHost.h"

namespace SysCarto {

struct Element::Private {
  QString name;
  ElementHandle handle = 0;
  bool visible = true;
  bool locked = false;
  ElementContainer* container = nullptr;  // in which it lies
  bool label = false;
  QString pages;
};

Element::Element() : d(std::make_unique<Private>()) {}
Element::Element(Element const& other) : CRef(other), d(std::make_unique<Private>()) {
  d->name = other.d->name;
  d->handle = other.d->handle;
  d->visible = other.d->visible;
  d->locked = other.d->locked;
  d->pages = other.d->pages;
}
Element::~Element() = default;

ElementHandle Element::GetHandle() const { return d->handle; }

QString Element::GetName() const { return d->name; }
void Element::SetName(QString const& name) {
  if (name == d->name) return;
  d->name = name;
  changed();
}

bool Element::IsVisible() const { return d->visible && (!d->container || d->container->isOnPage(d->pages)); }
void Element::SetVisible(bool visible) {
  if (visible == d->visible) return;
  d->visible = visible;
  changed();
}

void Element::handleChanged() {}
void Element::containerChanged() {}

void Element::changed() {
  if (d->container) d->container->elementChanged();
}

void Element::moved() {
  if (d->container) d->container->elementMoved();
}

void ElementHost::setHandle(Element& element, ElementHandle handle) {
  if (handle == element.d->handle) return;
  element.d->handle = handle;
  element.handleChanged();
}

void ElementHost::setContainer(Element& element, ElementContainer* container) {
  bool const wasPlaced = isPlaced(element);
  element.d->container = container;
  if (isPlaced(element) != wasPlaced) element.containerChanged();
}

bool ElementHost::isLocked(Element const& element) { return element.d->locked; }
void ElementHost::setLocked(Element& element, bool locked) { element.d->locked = locked; }

bool ElementHost::isSwitchedOn(Element const& element) { return element.d->visible; }
QString const& ElementHost::pages(Element const& element) { return element.d->pages; }
void ElementHost::setPages(Element& element, QString const& pages) { element.d->pages = pages; }

bool ElementHost::isPlaced(Element const& element) { return element.d->container != nullptr; }
ElementContainer const* ElementHost::container(Element const& element) { return element.d->container; }
bool ElementHost::isLabel(Element const& element) { return element.d->label; }
void ElementHost::becomeLabel(Element& element) { element.d->label = true; }

}  // namespace SysCarto
