// Shares independent tasks among the processor's cores.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <system_error>
#include <thread>
#include <vector>

namespace vitrelle::host {

/// Runs tasks 0 to count - 1, each once, beginning with the lowest. `makeWorker` gives each thread
/// a callable of its own, which is called with a task's number. Returns when all are done; the
/// calling thread works too.
template <class MakeWorker>
void inParallel(std::size_t count, MakeWorker makeWorker) {
  std::atomic<std::size_t> next{0};
  const auto work = [&] {
    auto worker = makeWorker();
    for (std::size_t task = next++; task < count; task = next++)
      worker(task);
  };
  const std::size_t cores = std::max(std::thread::hardware_concurrency(), 1U);
  std::vector<std::jthread> others;
  try {
    for (std::size_t i = 1; i < std::min(cores, count); ++i)
      others.emplace_back(work);
  } catch (const std::system_error&) {
    // The system has no more threads; those there are do it all.
  }
  work();
}

} // namespace vitrelle::host
