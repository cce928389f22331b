// The state that the application and the widgets share: plain values by key, and the record arrays
// of the six families. A store that can't be opened is no error here: reads give absence or empty
// arrays, writes are skipped.
#pragma once

#include "core/platform/Platform.h"
#include "core/store/Family.h"
#include "core/store/Key.h"

#include <functional>
#include <optional>
#include <vector>

namespace vitrelle {

/// Every call reaches through to the platform's store; nothing is kept between two calls. The
/// platform must outlive it. A key of the standard defaults is looked up there.
class GroupStore final {
 public:
  explicit GroupStore(const Platform& platform) : platform_(&platform) {}

  /// Nothing when the key is absent or its value is of another type.
  template <class T>
  std::optional<T> value(const Key<T>& key) const;

  /// The same, told apart from a store that can't be read: what decides over a write asks this way,
  /// so that nothing takes the place of what only could not be read.
  template <class T>
  Result<std::optional<T>> read(const Key<T>& key) const;

  /// Why the suite can't be read, if it can't.
  Status check(Suite suite) const;

  /// The key's default, or an empty value if it has none, in the place of absence.
  template <class T>
  T valueOrDefault(const Key<T>& key) const {
    if (std::optional<T> stored = value(key)) return *std::move(stored);
    if constexpr (std::is_constructible_v<T, decltype(key.defaultValue)>) {
      return T(key.defaultValue);
    } else {
      return {};
    }
  }

  /// Readers in this process and in the widgets see it at once. Whether it was stored; the logic
  /// goes on as if it were.
  template <class T>
  bool set(const Key<T>& key, const T& value) const;

  /// Calls with the present value before it returns, then with each later one, whoever wrote it.
  template <class T>
  Subscription subscribe(const Key<T>& key,
                         std::function<void(const std::optional<T>&)> subscriber) const;

  /// The family's whole array. Empty when one record of it is damaged: none is salvaged.
  template <class Record>
  std::vector<Record> loadRecords(const Family<Record>& family) const;

  /// The same, told apart from an array that can't be taken in: of a store that can't be read, or
  /// of more records than are read.
  template <class Record>
  Result<std::vector<Record>> readRecords(const Family<Record>& family) const;

  /// Replaces the family's array and reloads the widgets, even when the store can't be opened. An
  /// array that can't be encoded is reported on the debug console, and nothing else happens.
  /// Whether the records were stored.
  template <class Record>
  bool saveRecords(const Family<Record>& family, const std::vector<Record>& records) const;
  /// What is left of a save that may not write.
  void reloadWidgets() const { platform_->widgetCenter.reloadAllTimelines(); }

 private:
  const Platform* platform_;
};

} // namespace vitrelle
