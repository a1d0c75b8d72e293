#include "Offline.h"

#include <cpl_conv.h>
#include <cpl_http.h>
#include <cpl_string.h>
#include <cpl_vsi_virtual.h>
#include <ogr_srs_api.h>

#include <algorithm>
#include <cerrno>
#include <mutex>
#include <string>
#include <vector>

namespace SysCarto {

namespace {

// What stays on this machine. All others are taken for the network, so that one which a later GDAL brings is, too.
constexpr char const* localFileSystems[] = {"/vsimem/",   "/vsisubfile/", "/vsizip/",  "/vsigzip/",
                                            "/vsitar/",   "/vsi7z/",      "/vsirar/",  "/vsisparse/",
                                            "/vsicrypt/", "/vsicached?",  "/vsistdin", "/vsistdout"};

bool isLocal(std::string const& prefix) {
  return std::any_of(std::begin(localFileSystems), std::end(localFileSystems),
                     [&](char const* local) { return prefix.rfind(local, 0) == 0; });
}

// A file system without files.
class NoFiles final : public VSIFilesystemHandler {
public:
  VSIVirtualHandle* Open(char const* path, char const*, bool, CSLConstList) override {
    CPLError(CE_Failure, CPLE_AppDefined, "%s is not opened: no connection is made", path);
    errno = ENOENT;
    return nullptr;
  }
  int Stat(char const*, VSIStatBufL*, int) override {
    errno = ENOENT;
    return -1;
  }
};

void closeFileSystems() {
  // GDAL keeps pointers to what it installed; it lives as long as the process.
  static std::vector<VSIFilesystemHandler*> replaced;
  char** const prefixes = VSIGetFileSystemsPrefixes();
  for (int i = 0; i < CSLCount(prefixes); ++i) {
    if (isLocal(prefixes[i])) continue;
    replaced.push_back(VSIFileManager::GetHandler(prefixes[i]));
    VSIFileManager::InstallHandler(prefixes[i], new NoFiles);
  }
  CSLDestroy(prefixes);
}

CPLHTTPResult* refuse(char const* address, CSLConstList, GDALProgressFunc, void*, CPLHTTPFetchWriteFunc, void*, void*) {
  auto* const result = static_cast<CPLHTTPResult*>(CPLCalloc(1, sizeof(CPLHTTPResult)));
  result->nStatus = 1;
  result->pszErrBuf = CPLStrdup(CPLSPrintf("%s is not fetched: no connection is made", address));
  CPLError(CE_Failure, CPLE_AppDefined, "%s", result->pszErrBuf);
  return result;
}

}  // namespace

void stayOffline() {
  static std::once_flag once;
  std::call_once(once, [] {
    closeFileSystems();
    CPLHTTPSetFetchCallback(refuse, nullptr);  // a GeoJSON file may name an address as its coordinate system
    OSRSetPROJEnableNetwork(FALSE);            // grids that a transformation would fetch
  });
}

}  // namespace SysCarto
