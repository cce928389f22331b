#include "cli/CutStyle.h"

#include "cli/Command.h"
#include "cli/Interruption.h"
#include "core/slicing/Measurements.h"
#include "core/slicing/ScreenshotPhones.h"
#include "core/slicing/WallpaperInterface.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vitrelle::cli {

namespace {

constexpr std::size_t filesPerScreenshot = 12;

struct Screenshot {
  std::string path;
  InterfaceStyle style;
  Image image;
};

std::string times(std::int64_t width, std::int64_t height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

Result<std::vector<Screenshot>> load(const Platform& platform, const Screenshots& paths) {
  std::vector<Screenshot> screenshots;
  std::vector<Image> images;
  for (const auto& [path, style] :
       {std::pair(paths.light, lightStyle), std::pair(paths.dark, darkStyle)}) {
    if (!path) continue;
    Result<Image> image = platform.images.load(*path);
    if (!image) return image.failure();
    images.push_back(*image);
    screenshots.push_back({*path, style, *std::move(image)});
  }
  const Status decoded = platform.images.decode(images);
  if (!decoded) return decoded.failure();
  return screenshots;
}

std::optional<Failure> sizeRemark(const Platform& platform, const Screenshot& screenshot) {
  const PixelSize expected = screenshotSize(platform.device);
  const PixelSize size = screenshot.image.size();
  if (size == expected) return std::nullopt;
  std::string why = "its " + times(size.width, size.height) + " pixels are not the " +
                    times(expected.width, expected.height) + " of this phone's screenshots";
  const PhoneChoice present = platform.phoneBook.current();
  const auto origins = screenshotOrigins(platform.phoneBook.models(), present, size);
  if (!origins.empty()) {
    const PhoneChoice& other = origins.front().choice;
    why += ", but those of --phone \"" + origins.front().phones.front().name + "\"";
    if (other.os != present.os) why += " --os " + describe(other.os);
    if (other.zoomed != present.zoomed) why += other.zoomed ? " --zoomed" : " --standard";
  }
  return Failure{screenshot.path, why + "; the slots may be off"};
}

} // namespace

bool isMeasured(const Platform& platform) {
  if (Measurements::current(platform).widgetSize != 0) return true;
  const PhoneChoice phone = platform.phoneBook.current();
  complain({phoneName(platform), "there are no measurements for it on OS " + describe(phone.os) +
                                     (phone.zoomed ? " with a zoomed display" : "")});
  return false;
}

Result<CutStyle> cutScreenshots(const Platform& platform, const Screenshots& screenshots,
                                const StoreScreenshot& store) {
  const auto loaded = load(platform, screenshots);
  if (!loaded) return loaded.failure();
  if (Interruption::came()) return Failure{"the cut", "it was interrupted"};
  CutStyle cut;
  for (const Screenshot& screenshot : *loaded) {
    if (auto remark = sizeRemark(platform, screenshot)) cut.remarks.push_back(*std::move(remark));
    std::vector<StoredSlice> files = store(screenshot.image, screenshot.style);
    if (files.size() < filesPerScreenshot) {
      cut.missing.push_back(
          {screenshot.path,
           "it is too small: " + std::to_string(filesPerScreenshot - files.size()) +
               " of the eleven slots lie outside of it"});
    }
    std::move(files.begin(), files.end(), std::back_inserter(cut.files));
  }
  return cut;
}

Result<CutStyle> cutStyle(const Platform& platform, StyleNumber number,
                          const Screenshots& screenshots) {
  const auto wallpaper = WallpaperInterface::shared(platform);
  return cutScreenshots(platform, screenshots, [&](const Image& image, InterfaceStyle style) {
    return wallpaper->setImage(image, style, number);
  });
}

bool complainOf(const CutStyle& cut) {
  bool complete = cut.missing.empty();
  for (const Failure& remark : cut.remarks)
    complain(remark);
  for (const Failure& missing : cut.missing)
    complain(missing);
  for (const StoredSlice& file : cut.files) {
    if (file.bytes) continue;
    complain(file.bytes.failure());
    complete = false;
  }
  return complete;
}

std::size_t writtenFiles(const CutStyle& cut) {
  return static_cast<std::size_t>(
      std::ranges::count_if(cut.files, [](const StoredSlice& file) { return file.bytes.ok(); }));
}

std::size_t totalBytes(const CutStyle& cut) {
  std::size_t total = 0;
  for (const StoredSlice& file : cut.files) {
    if (file.bytes) total += *file.bytes;
  }
  return total;
}

} // namespace vitrelle::cli
