#include "cli/Command.h"

#include <cstdio>

namespace vitrelle::cli {

void complain(const Failure& failure) {
  std::fprintf(stderr, "vitrelle: %s: %s\n", failure.what.c_str(), failure.why.c_str());
}

} // namespace vitrelle::cli
