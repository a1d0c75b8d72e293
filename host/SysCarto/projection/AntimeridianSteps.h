#pragma once

#include "ProjectionDomain.h"

namespace SysCarto {

/// The same places with every step in longitude the short way round.
void unwrap(Run& run);

/// A ring that goes around the globe has a pole inside: it is closed along the meridian and over the pole.
void closeOverPole(Run& ring);

/// Geographic data that were not cut at the antimeridian step across it. Where steps can't be meant as they are
/// written, they go on beyond it; `centralLongitude` is where the longitudes are counted from.
void joinRing(Run& ring, double centralLongitude);
void joinLine(Run& line, double centralLongitude);

}  // namespace SysCarto
