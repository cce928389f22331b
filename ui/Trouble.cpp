#include "ui/Trouble.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace vitrelle::ui {

Platform withTroubleTold(Platform platform, std::function<void(const Failure&)> tell) {
  const auto told = std::make_shared<bool>(false);
  const auto note = [told, tell = std::move(tell)](const Failure* failure) {
    if (failure != nullptr && !*told) tell(*failure);
    *told = failure != nullptr;
  };
  platform.defaults.set = [set = platform.defaults.set, note](Suite suite, const std::string& key,
                                                              const StoreValue& value) {
    Status status = set(suite, key, value);
    note(status ? nullptr : &status.failure());
    return status;
  };
  platform.images.writePngFiles = [write = platform.images.writePngFiles,
                                   note](std::span<const PngFile> files) {
    std::vector<Result<std::size_t>> written = write(files);
    const auto failed = std::ranges::find(written, false, &Result<std::size_t>::ok);
    note(failed == written.end() ? nullptr : &failed->failure());
    return written;
  };
  return platform;
}

} // namespace vitrelle::ui
