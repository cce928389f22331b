// What the application's bundle says of itself.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace vitrelle {

struct Bundle {
  /// Reverse domain name of the application, such as "com.example.program".
  std::function<std::optional<std::string>()> identifier;
  /// The version that users are told, "2.1".
  std::function<std::optional<std::string>()> shortVersion;
  /// Where the store's receipt lies; a build for testers has one named "sandboxReceipt". Nothing
  /// where no store is behind the application.
  std::function<std::optional<std::string>()> appStoreReceiptURL;
};

} // namespace vitrelle
