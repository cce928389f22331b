#include "ui/Unwritten.h"

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace vitrelle::ui {

namespace {

/// What was written, in the place of what the platform would have written.
struct Kept {
  std::map<std::pair<Suite, std::string>, std::optional<StoreValue>> values; ///< none: removed
  Subscribers<Suite, const std::string&> changes;
  std::mutex mutex; ///< guards the pictures, which are looked for on several threads
  std::map<std::string, Image> pictures; ///< by path

  std::optional<Image> picture(const std::string& path) {
    const std::lock_guard lock(mutex);
    const auto found = pictures.find(path);
    return found == pictures.end() ? std::nullopt : std::optional(found->second);
  }
};

Defaults keptDefaults(const Defaults& stored, const std::shared_ptr<Kept>& kept) {
  const auto value = [kept, read = stored.value](Suite suite, const std::string& key) {
    const auto found = kept->values.find({suite, key});
    return found == kept->values.end() ? read(suite, key)
                                       : Result<std::optional<StoreValue>>(found->second);
  };
  const auto put = [kept](Suite suite, const std::string& key, std::optional<StoreValue> now) {
    kept->values.insert_or_assign({suite, key}, std::move(now));
    kept->changes.notify(suite, key);
    return success();
  };
  return {
      .value = value,
      .set = [put](Suite suite, const std::string& key,
                   const StoreValue& now) { return put(suite, key, now); },
      .remove = [put](Suite suite, const std::string& key) { return put(suite, key, {}); },
      .keys = [kept, keys = stored.keys](Suite suite) -> Result<std::vector<std::string>> {
        const auto present = keys(suite);
        if (!present) return present.failure();
        std::set<std::string> all(present->begin(), present->end());
        for (const auto& [place, now] : kept->values) {
          if (place.first != suite) continue;
          now ? static_cast<void>(all.insert(place.second))
              : static_cast<void>(all.erase(place.second));
        }
        return std::vector<std::string>(all.begin(), all.end());
      },
      .watch =
          [kept, value](Suite suite, const std::string& key,
                        const std::function<void(const std::optional<StoreValue>&)>& subscriber) {
            const auto tell = [=] {
              const auto now = value(suite, key);
              subscriber(now ? *now : std::nullopt);
            };
            tell();
            return kept->changes.add([=](Suite changedSuite, const std::string& changedKey) {
              if (changedSuite == suite && changedKey == key) tell();
            });
          },
      .watchKeys =
          [kept](Suite suite, const std::function<void(const std::string&)>& subscriber) {
            return kept->changes.add([=](Suite changedSuite, const std::string& changedKey) {
              if (changedSuite == suite) subscriber(changedKey);
            });
          }};
}

} // namespace

Platform withNothingWritten(Platform platform) {
  const auto kept = std::make_shared<Kept>();
  platform.defaults = keptDefaults(platform.defaults, kept);
  platform.images.load = [kept, load = platform.images.load](const std::string& path) {
    const auto picture = kept->picture(path);
    return picture ? Result<Image>(*picture) : load(path);
  };
  platform.images.writePngFiles = [kept](std::span<const PngFile> files) {
    const std::lock_guard lock(kept->mutex);
    std::vector<Result<std::size_t>> written;
    for (const PngFile& file : files) {
      const Result<Bitmap> bitmap = file.image.bitmap();
      if (bitmap && bitmap->size.width > 0) {
        kept->pictures.insert_or_assign(file.path, file.image);
        written.emplace_back(std::size_t{0});
      } else {
        written.emplace_back(bitmap ? Failure{file.path, "it has no pixels"} : bitmap.failure());
      }
    }
    return written;
  };
  platform.files.fileExists = [kept, exists = platform.files.fileExists](const std::string& path) {
    return kept->picture(path) || exists(path);
  };
  platform.files.lock = [](double) { return Result<HomeLock>(std::make_shared<const int>()); };
  platform.widgetCenter = {
      .reloadAllTimelines = [] {},
      .watchReloads = [](const std::function<void()>&) { return Subscription(); }};
  platform.phoneBook.save = [](const PhoneChoice&) { return success(); };
  platform.phoneBook.watch = [](const std::function<void(const PhoneChoice&)>&) {
    return Subscription();
  };
  return platform;
}

} // namespace vitrelle::ui
