// The platform's key-value stores: the group store that both processes share, and the
// application's own standard defaults.
#pragma once

#include "core/platform/Data.h"
#include "core/platform/Result.h"
#include "core/platform/Subscription.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace vitrelle {

/// The name of the group store and of the group folder.
inline constexpr const char* groupIdentifier = "group.quillmeresoftware.vitrelle";

enum class Suite {
  group,    ///< shared with the widgets, named by `groupIdentifier`
  standard, ///< private to the application
};

/// A moment, in seconds since 2001-01-01 00:00 UTC (the platform's reference date).
struct Date {
  double secondsSinceReferenceDate = 0;
  bool operator==(const Date&) const = default;
};

/// One stored value of a plain property-list kind.
using StoreValue = std::variant<std::int64_t, double, bool, std::string, Data, Date>;

/// Each call opens its suite anew, sees what any process wrote last, and may fail as a whole when
/// the suite can't be opened. Absence is a value: an empty optional.
struct Defaults {
  std::function<Result<std::optional<StoreValue>>(Suite, const std::string& key)> value;

  /// Replaces the value whole; it is durable when the call returns.
  std::function<Status(Suite, const std::string& key, const StoreValue&)> set;

  /// Removes the key; removing an absent key succeeds.
  std::function<Status(Suite, const std::string& key)> remove;

  /// All keys that have a value, in ascending order.
  std::function<Result<std::vector<std::string>>(Suite)> keys;

  /// Delivers the present value before it returns, then each later one, whoever wrote it, on the
  /// main thread. Several quick writes may arrive as one delivery of the last. A write of the
  /// value that is already there need not be delivered.
  std::function<Subscription(Suite, const std::string& key,
                             std::function<void(const std::optional<StoreValue>&)>)>
      watch;

  /// Names each key that changes in the suite, on the main thread; nothing at the start.
  std::function<Subscription(Suite, std::function<void(const std::string& key)>)> watchKeys;
};

} // namespace vitrelle
