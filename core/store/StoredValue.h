// One key of one store, bound for as long as a screen shows it.
#pragma once

#include "core/store/GroupStore.h"

namespace vitrelle {

/// Holds no value of its own: each `get` reads the store and each `set` writes it at once.
template <class T>
class StoredValue final {
 public:
  StoredValue(const Platform& platform, const Key<T>& key) : store_(platform), key_(key) {}

  /// Nothing when the key is absent or its value is of another type.
  std::optional<T> get() const { return store_.value(key_); }
  /// The same, told apart from a store that can't be read.
  Result<std::optional<T>> read() const { return store_.read(key_); }
  T getOrDefault() const { return store_.valueOrDefault(key_); }
  void set(const T& value) const { store_.set(key_, value); }

  /// Calls with the present value before it returns, then with each later one, whoever wrote it.
  Subscription onChange(std::function<void(const std::optional<T>&)> subscriber) const {
    return store_.subscribe(key_, std::move(subscriber));
  }

 private:
  GroupStore store_;
  Key<T> key_;
};

} // namespace vitrelle
