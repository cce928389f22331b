#include "cli/Command.h"

#include "cli/OneLine.h"
#include "core/slicing/DeviceNames.h"

#include <cstdio>
#include <utility>

namespace vitrelle::cli {

std::string phoneName(const Platform& platform) {
  return modelName(platform.phoneBook.current().identifier, platform.device);
}

HomeLock lockHome(const Platform& platform) {
  // Commands hold it for well under a second, but several may wait. The application holds it while
  // a style is made by hand, which may take longer than anyone waits.
  constexpr double patienceSeconds = 30;
  auto lock = platform.files.lock(patienceSeconds);
  if (lock) return *std::move(lock);
  complain(lock.failure());
  return nullptr;
}

void complain(const Failure& failure) {
  std::fprintf(stderr, "vitrelle: %s: %s\n", oneLine(failure.what).c_str(),
               oneLine(failure.why).c_str());
}

} // namespace vitrelle::cli
