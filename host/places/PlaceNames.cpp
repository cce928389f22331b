#include "host/places/PlaceNames.h"

#include "host/desktop/Worker.h"
#include "host/files/Descriptor.h"
#include "host/places/CityList.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vitrelle::host {

namespace {

Result<std::string> contents(const std::string& path) {
  constexpr off_t most = 64 << 20;
  const Descriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  if (!file || fstat(file.get(), &status) != 0) return Failure{path, std::strerror(errno)};
  if (!S_ISREG(status.st_mode)) return Failure{path, "it is no regular file"};
  if (status.st_size > most) return Failure{path, "it is too large"};
  std::string text(static_cast<std::size_t>(status.st_size), '\0');
  std::size_t filled = 0;
  while (filled < text.size()) {
    const ssize_t size = read(file.get(), text.data() + filled, text.size() - filled);
    if (size < 0) return Failure{path, std::strerror(errno)};
    if (size == 0) break;
    filled += static_cast<std::size_t>(size);
  }
  text.resize(filled);
  return text;
}

/// The list of a folder, for one thread at a time.
class Towns final {
 public:
  explicit Towns(std::string folder) : folder_(std::move(folder)) {}

  Result<std::vector<Placemark>> at(const Coordinate& position) {
    if (const Status read = readOnce(); !read) return read.failure();
    const City* const town = list_->nearest(position);
    if (town == nullptr) return std::vector<Placemark>();
    return std::vector{Placemark{.locality = town->name}};
  }

  Result<std::vector<City>> named(const std::string& words, std::size_t most) {
    if (const Status read = readOnce(); !read) return read.failure();
    return list_->search(words, most);
  }

 private:
  /// Again after a failure: the list may have been installed since.
  Status readOnce() {
    if (list_) return success();
    const std::string file = folder_ + "/cities15000.txt";
    const auto cities = contents(file);
    if (!cities) return cities.failure();
    const auto countries = contents(folder_ + "/countryInfo.txt"); // their codes will do
    auto list = CityList::parse(*cities, countries ? *countries : std::string());
    if (!list) return Failure{file, list.failure().why};
    list_ = *std::move(list);
    return success();
  }

  std::string folder_;
  std::optional<CityList> list_;
};

} // namespace

Geocoder makeGeocoder(const EventLoop& loop, std::string folder) {
  using Placemarks = Result<std::vector<Placemark>>;
  using Cities = Result<std::vector<City>>;
  const auto worker = std::make_shared<Worker>(loop);
  const auto towns = std::make_shared<Towns>(std::move(folder));
  return {.reverseGeocodeLocation =
              [worker, towns](const Coordinate& position,
                              std::function<void(const Placemarks&)> completion) {
                return worker->run<Placemarks>([towns, position] { return towns->at(position); },
                                               std::move(completion));
              },
          .search =
              [worker, towns](const std::string& words, std::size_t most,
                              std::function<void(const Cities&)> completion) {
                return worker->run<Cities>(
                    [towns, words, most] { return towns->named(words, most); },
                    std::move(completion));
              }};
}

void useGeocoder(Platform& platform, const EventLoop& loop) {
  platform.geocoder = makeGeocoder(loop);
}

} // namespace vitrelle::host
