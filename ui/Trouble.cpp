#include "ui/Trouble.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace vitrelle::ui {

namespace {

/// What has been told of and has not worked since.
struct Told {
  std::function<void(Trouble, const Failure&)> tell;
  std::function<void()> over;
  std::array<bool, 2> reading{}; ///< by suite
  std::array<bool, 2> writing{};
  bool files = false;

  void note(bool& told, Trouble trouble, const Failure* failure) const {
    const bool wasTold = std::exchange(told, failure != nullptr);
    if (failure != nullptr && !wasTold) tell(trouble, *failure);
    if (failure == nullptr && wasTold) over();
  }
};

template <class T>
const Failure* failureOf(const Result<T>& result) {
  return result ? nullptr : &result.failure();
}

} // namespace

Platform withTroubleTold(Platform platform, std::function<void(Trouble, const Failure&)> tell,
                         std::function<void()> over) {
  const auto told = std::make_shared<Told>();
  told->tell = std::move(tell);
  told->over = std::move(over);
  const auto index = [](Suite suite) { return suite == Suite::group ? 0U : 1U; };

  platform.defaults.value = [told, index, value = platform.defaults.value](Suite suite,
                                                                           const std::string& key) {
    auto result = value(suite, key);
    told->note(told->reading[index(suite)], Trouble::reading, failureOf(result));
    return result;
  };
  platform.defaults.keys = [told, index, keys = platform.defaults.keys](Suite suite) {
    auto result = keys(suite);
    told->note(told->reading[index(suite)], Trouble::reading, failureOf(result));
    return result;
  };
  platform.defaults.set = [told, index, set = platform.defaults.set](
                              Suite suite, const std::string& key, const StoreValue& value) {
    Status result = set(suite, key, value);
    if (!told->reading[index(suite)]) {
      told->note(told->writing[index(suite)], Trouble::writing, failureOf(result));
    }
    return result;
  };
  platform.images.writePngFiles =
      [told, write = platform.images.writePngFiles](std::span<const PngFile> files) {
        std::vector<Result<std::size_t>> written = write(files);
        const auto failed = std::ranges::find(written, false, &Result<std::size_t>::ok);
        told->note(told->files, Trouble::writing,
                   failed == written.end() ? nullptr : &failed->failure());
        return written;
      };
  return platform;
}

} // namespace vitrelle::ui
