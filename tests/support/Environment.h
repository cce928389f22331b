// A variable of the environment that is as it was before at the end of its scope.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace vitrelle::test {

class Environment final {
 public:
  /// Null takes it away.
  Environment(const char* name, const char* value) : name_(name) {
    if (const char* before = std::getenv(name)) before_ = before;
    set(value);
  }
  ~Environment() { set(before_ ? before_->c_str() : nullptr); }
  Environment(const Environment&) = delete;
  Environment& operator=(const Environment&) = delete;

  void set(const char* value) const {
    value == nullptr ? unsetenv(name_) : setenv(name_, value, 1);
  }

 private:
  const char* name_;
  std::optional<std::string> before_;
};

} // namespace vitrelle::test
