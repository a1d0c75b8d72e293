#pragma once

#include <QByteArray>

#include <cpl_conv.h>

namespace SysCarto {

/// What GDAL would look for beside a file is switched off but for world files, and overviews and masks that are TIFFs:
/// a description of another kind (.aux.xml) names files of its own.
class OwnFilesOnly {
public:
  OwnFilesOnly() : before_(CPLGetThreadLocalConfigOption(option, nullptr)) { set("NO"); }
  ~OwnFilesOnly() { set(before_.isNull() ? nullptr : before_.constData()); }
  OwnFilesOnly(OwnFilesOnly const&) = delete;
  OwnFilesOnly& operator=(OwnFilesOnly const&) = delete;

private:
  static constexpr char const* option = "GDAL_PAM_ENABLED";
  static void set(char const* value) { CPLSetThreadLocalConfigOption(option, value); }

  QByteArray const before_;
};

}  // namespace SysCarto
