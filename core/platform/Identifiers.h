// Names for things that no other thing has.
#pragma once

#include <functional>
#include <string>

namespace vitrelle {

struct Identifiers {
  /// A random UUID (version 4): 36 characters, upper case.
  std::function<std::string()> newUuid;
};

} // namespace vitrelle
