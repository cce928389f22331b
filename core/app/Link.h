// A link into the application, "vitrelle://support/widget-label".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vitrelle {

/// The parts of a URL that are looked at. The scheme is checked by the system.
struct Link {
  std::optional<std::string> host; ///< as it stands, in its own case
  std::string lastPathComponent;   ///< without percent-encoding; empty when there is no path

  /// Any text will do: what is no URL has no host.
  static Link parse(std::string_view url);
};

} // namespace vitrelle
