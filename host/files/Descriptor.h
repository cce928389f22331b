// A file descriptor that is closed with its owner.
#pragma once

#include <utility>

#include <unistd.h>

namespace vitrelle::host {

class Descriptor final {
 public:
  Descriptor() = default;
  explicit Descriptor(int value) : value_(value) {}
  Descriptor(Descriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~Descriptor() {
    if (value_ >= 0) close(value_);
  }

  int get() const { return value_; } ///< -1 when there is none
  explicit operator bool() const { return value_ >= 0; }

 private:
  int value_ = -1;
};

} // namespace vitrelle::host
