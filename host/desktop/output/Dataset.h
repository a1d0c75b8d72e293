#pragma once

#include <gdal_priv.h>

#include <memory>

struct DatasetCloser {
  void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using DatasetPtr = std::unique_ptr<GDALDataset, DatasetCloser>;
