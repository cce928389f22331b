// How long a few ways of doing one thing take, in one process.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace bench {

/// The median milliseconds of each of the ways. They take turns, so that what else the machine does
/// falls on all of them; a first turn is not timed.
inline std::vector<double> medians(int rounds, const std::vector<std::function<void()>>& ways) {
  std::vector<std::vector<double>> times(ways.size());
  for (int round = -1; round < rounds; ++round) {
    for (std::size_t way = 0; way < ways.size(); ++way) {
      const auto start = std::chrono::steady_clock::now();
      ways[way]();
      const std::chrono::duration<double, std::milli> time =
          std::chrono::steady_clock::now() - start;
      if (round >= 0) times[way].push_back(time.count());
    }
  }
  std::vector<double> result;
  for (std::vector<double>& sample : times) {
    std::sort(sample.begin(), sample.end());
    result.push_back(sample[sample.size() / 2]);
  }
  return result;
}

} // namespace bench
