#include <SysCarto/Graticule.h>
#include <SysCarto/MapFrameElement.h>

namespace SysCarto {

using SysUtility::_ptr_t;

IMapGrid::~IMapGrid() = default;

struct Graticule::Private {
  QString name;
};

Graticule::Graticule() : d(std::make_unique<Private>()) {}
Graticule::Graticule(Graticule const& other) : IMapGrid(other), d(std::make_unique<Private>(*other.d)) {}
Graticule::~Graticule() = default;

QString Graticule::GetName() const { return d->name; }
void Graticule::SetName(QString const& name) { d->name = name; }

void Graticule::Draw(QPainter&, _ptr_t<SysUI::TrackerCancel> const&, _ptr_t<SysDisplay::DisplayTransformation> const&,
                     _ptr_t<MapFrameElement> const&) {}

double Graticule::GetMargin() const { return 0; }

_ptr_t<IMapGrid> Graticule::Clone() const { return SysUtility::make<Graticule>(*this); }

}  // namespace SysCarto
