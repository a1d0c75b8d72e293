// What the pixels of an image cost GDAL alone: 512 × 512 tiles into an uncompressed TIFF, then a copy in the image's
// format. The pixels come from a file of tiles, made beforehand, so that no picture has to be decoded on the way.
//
//     plotvane_bench_floor unpack IMAGE TILES
//     plotvane_bench_floor write TILES WIDTH HEIGHT IMAGE

#include <gdal_priv.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr int tileSize = 512;
constexpr int bandCount = 3;
constexpr int bytesPerPixel = 4;  // red, green, blue and an unused one, as an export has them in its tiles

struct DatasetCloser {
  void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using DatasetPtr = std::unique_ptr<GDALDataset, DatasetCloser>;

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

struct Tile {
  int x, y, width, height;
  std::size_t bytes() const { return static_cast<std::size_t>(width) * height * bytesPerPixel; }
};

[[noreturn]] void giveUp(char const* why, std::string const& what) {
  std::fprintf(stderr, "plotvane_bench_floor: %s: %s\n", what.c_str(), why);
  std::exit(1);
}

class Stopwatch {
public:
  void start() { start_ = Clock::now(); }
  void stop() { seconds_ += std::chrono::duration<double>(Clock::now() - start_).count(); }
  double seconds() const { return seconds_; }

private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point start_;
  double seconds_ = 0;
};

void forEachTile(int width, int height, std::function<void(Tile const&)> const& visit) {
  for (int y = 0; y < height; y += tileSize)
    for (int x = 0; x < width; x += tileSize)
      visit({x, y, std::min(tileSize, width - x), std::min(tileSize, height - y)});
}

FilePtr openFile(std::string const& path, char const* mode) {
  FilePtr file(std::fopen(path.c_str(), mode));
  if (!file) giveUp("can't be opened", path);
  return file;
}

void transfer(GDALDataset& dataset, GDALRWFlag direction, Tile const& tile, unsigned char* bytes) {
  for (int band = 1; band <= bandCount; ++band)
    if (dataset.GetRasterBand(band)->RasterIO(direction, tile.x, tile.y, tile.width, tile.height, bytes + band - 1,
                                              tile.width, tile.height, GDT_Byte, bytesPerPixel,
                                              GSpacing{bytesPerPixel} * tile.width, nullptr) != CE_None)
      giveUp(CPLGetLastErrorMsg(), dataset.GetDescription());
}

int unpack(std::string const& image, std::string const& tiles) {
  DatasetPtr const dataset(static_cast<GDALDataset*>(GDALOpen(image.c_str(), GA_ReadOnly)));
  if (!dataset || dataset->GetRasterCount() != bandCount) giveUp("is no image with three bands", image);
  FilePtr const file = openFile(tiles, "wb");
  std::vector<unsigned char> bytes;
  forEachTile(dataset->GetRasterXSize(), dataset->GetRasterYSize(), [&](Tile const& tile) {
    bytes.assign(tile.bytes(), 0xff);
    transfer(*dataset, GF_Read, tile, bytes.data());
    if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) giveUp("can't be written", tiles);
  });
  std::printf("{\"width\": %d, \"height\": %d}\n", dataset->GetRasterXSize(), dataset->GetRasterYSize());
  return 0;
}

GDALDriver& driver(std::string const& name) {
  GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName(name.c_str());
  if (!driver) giveUp("this GDAL has no such driver", name);
  return *driver;
}

std::string driverName(std::string const& image) {
  std::string const suffix = CPLGetExtension(image.c_str());
  return suffix == "png" ? "PNG" : suffix == "jpg" ? "JPEG" : "GTiff";
}

int write(std::string const& tiles, int width, int height, std::string const& image) {
  Stopwatch reading, writing, converting;
  FilePtr const file = openFile(tiles, "rb");
  std::string const temporary = image + ".floor.tif";
  DatasetPtr dataset(driver("GTiff").Create(temporary.c_str(), width, height, bandCount, GDT_Byte, nullptr));
  if (!dataset) giveUp("can't be created", temporary);
  std::vector<unsigned char> bytes;
  forEachTile(width, height, [&](Tile const& tile) {
    reading.start();
    bytes.resize(tile.bytes());
    if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) giveUp("is too short", tiles);
    reading.stop();
    writing.start();
    transfer(*dataset, GF_Write, tile, bytes.data());
    writing.stop();
  });
  converting.start();
  DatasetPtr result(
      driver(driverName(image)).CreateCopy(image.c_str(), dataset.get(), TRUE, nullptr, nullptr, nullptr));
  if (!result) giveUp(CPLGetLastErrorMsg(), image);
  dataset.reset();
  result.reset();
  VSIUnlink(temporary.c_str());
  converting.stop();
  std::printf("{\"read\": %.6f, \"write\": %.6f, \"convert\": %.6f}\n", reading.seconds(), writing.seconds(),
              converting.seconds());
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> const arguments(argv + 1, argv + argc);
  GDALAllRegister();
  if (arguments.size() == 3 && arguments[0] == "unpack") return unpack(arguments[1], arguments[2]);
  if (arguments.size() == 5 && arguments[0] == "write")
    return write(arguments[1], std::atoi(arguments[2].c_str()), std::atoi(arguments[3].c_str()), arguments[4]);
  std::fputs("usage: plotvane_bench_floor unpack IMAGE TILES | write TILES WIDTH HEIGHT IMAGE\n", stderr);
  return 2;
}
