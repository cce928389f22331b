// A line on standard error that counts on while a person watches.
#pragma once

#include <cstddef>
#include <string>

namespace vitrelle::cli {

/// Shows nothing where standard error is no terminal. Clear it before anything else is written.
class Progress final {
 public:
  /// `count` is above 0.
  explicit Progress(std::size_t count);
  ~Progress() { clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  void show(std::size_t done, const std::string& name) const;
  void clear() const;

 private:
  std::size_t count_;
  bool shown_;
};

} // namespace vitrelle::cli
