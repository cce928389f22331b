// Failures of the world as values: what an operation that can fail gives back.
#pragma once

#include "core/platform/FatalError.h"

#include <string>
#include <utility>
#include <variant>

namespace vitrelle {

/// One failure, in words for a person. Shown as "what: why".
struct Failure {
  std::string what; ///< the thing that failed: a path, a key
  std::string why;  ///< the reason, without a full stop
  bool operator==(const Failure&) const = default;
};

/// A value, or the failure that stands in its place. Asking for the one that is not there is a
/// fatal error.
template <class T>
class [[nodiscard]] Result final {
 public:
  Result(T value) : content_(std::in_place_index<0>, std::move(value)) {}
  Result(Failure failure) : content_(std::in_place_index<1>, std::move(failure)) {}

  bool ok() const { return content_.index() == 0; }
  explicit operator bool() const { return ok(); }

  const T& value() const& {
    if (!ok()) fatalError("the value of a failed result");
    return *std::get_if<0>(&content_);
  }
  T&& value() && {
    if (!ok()) fatalError("the value of a failed result");
    return std::move(*std::get_if<0>(&content_));
  }
  const T& operator*() const& { return value(); }
  T&& operator*() && { return std::move(*this).value(); }
  const T* operator->() const { return &value(); }

  const Failure& failure() const {
    if (ok()) fatalError("the failure of a result that has a value");
    return *std::get_if<1>(&content_);
  }

 private:
  std::variant<T, Failure> content_;
};

/// The result of an operation that gives nothing but its success.
using Status = Result<std::monostate>;
inline Status success() {
  return std::monostate{};
}

} // namespace vitrelle
