#include "cli/Progress.h"

#include "cli/OneLine.h"

#include <cstdio>

#include <unistd.h>

namespace vitrelle::cli {

Progress::Progress(std::size_t count) : count_(count), shown_(isatty(STDERR_FILENO) == 1) {}

void Progress::show(std::size_t done, const std::string& name) const {
  if (!shown_) return;
  constexpr std::size_t width = 24;
  const std::size_t filled = width * done / count_;
  std::fprintf(stderr, "\r\x1b[K[%s%s] %zu of %zu  %s", std::string(filled, '#').c_str(),
               std::string(width - filled, '.').c_str(), done, count_, oneLine(name).c_str());
  std::fflush(stderr);
}

void Progress::clear() const {
  if (shown_) std::fprintf(stderr, "\r\x1b[K");
}

} // namespace vitrelle::cli
