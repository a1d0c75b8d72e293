#pragma once

namespace SysCarto {

/// From its first call on, GDAL and PROJ open no connection in this process, whatever the environment says and whatever
/// data name. To be called before either reads anything that comes from strangers.
void stayOffline();

}  // namespace SysCarto
