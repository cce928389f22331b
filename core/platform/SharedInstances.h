// The objects that are made once for a platform, at first use and thread-safe.
#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <typeindex>
#include <utility>

namespace vitrelle {

/// One instance of each type that is asked for. Copies refer to the same instances.
class SharedInstances final {
 public:
  /// The instance of T, made by `make` at the first call. `make` may ask for other types.
  template <class T, class Make>
  std::shared_ptr<T> get(Make make) const {
    const std::lock_guard lock(state_->mutex);
    auto& slot = state_->instances[std::type_index(typeid(T))];
    if (!slot) slot = std::shared_ptr<T>(make());
    return std::static_pointer_cast<T>(slot);
  }

  /// Puts another instance in the place of the present one.
  template <class T>
  void replace(std::shared_ptr<T> instance) const {
    const std::lock_guard lock(state_->mutex);
    state_->instances[std::type_index(typeid(T))] = std::move(instance);
  }

  /// The next call of `get` makes it anew. Whoever holds the present one keeps it.
  template <class T>
  void forget() const {
    const std::lock_guard lock(state_->mutex);
    state_->instances.erase(std::type_index(typeid(T)));
  }

 private:
  struct State {
    std::recursive_mutex mutex;
    std::map<std::type_index, std::shared_ptr<void>> instances;
  };
  std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace vitrelle
