#include "cli/Command.h"

#include "core/slicing/DeviceNames.h"

#include <cstdio>

namespace vitrelle::cli {

std::string phoneName(const Platform& platform) {
  return modelName(platform.phoneBook.current().identifier, platform.device);
}

void complain(const Failure& failure) {
  std::fprintf(stderr, "vitrelle: %s: %s\n", failure.what.c_str(), failure.why.c_str());
}

} // namespace vitrelle::cli
