// The job that the peers are timed at, told once: which pictures are cut out of a screenshot of an
// iPhone 15 Pro and what their files are called.
#pragma once

#include <string>

namespace bench {

struct Slice {
  const char* stem;
  int x, y, width, height; // pixels
};

inline constexpr int small = 474; // a small slot's side
inline constexpr int left = 83;
inline constexpr int top = 240;
inline constexpr int right = left + 540;
inline constexpr int middle = top + 588;
inline constexpr int bottom = top + 2 * 588;
inline constexpr int wide = 540 + small;
inline constexpr int high = 588 + small;

inline constexpr Slice slices[] = {
    {"topLeftSmall", left, top, small, small},
    {"topRightSmall", right, top, small, small},
    {"midLeftSmall", left, middle, small, small},
    {"midRightSmall", right, middle, small, small},
    {"bottomLeftSmall", left, bottom, small, small},
    {"bottomRightSmall", right, bottom, small, small},
    {"topMedium", left, top, wide, small},
    {"midMedium", left, middle, wide, small},
    {"bottomMedium", left, bottom, wide, small},
    {"topLarge", left, top, wide, high},
    {"bottomLarge", left, middle, wide, high},
};

inline std::string fileOf(const std::string& folder, const char* stem, bool dark) {
  return folder + "/0" + stem + (dark ? "Dark" : "") + ".png";
}

/// Runs the job of a command line "LIGHT [DARK] FOLDER" with `cut(path, folder, dark)`, which cuts
/// one screenshot and tells whether it could. The exit status.
template <class Cut>
int run(int argumentCount, char** arguments, Cut cut) {
  if (argumentCount != 3 && argumentCount != 4) return 2;
  const std::string folder = arguments[argumentCount - 1];
  for (int i = 1; i < argumentCount - 1; ++i) {
    if (!cut(std::string(arguments[i]), folder, i == 2)) return 1;
  }
  return 0;
}

} // namespace bench
