// A key of a store with the type of its value, so that no reader has to know either by heart.
#pragma once

#include "core/platform/Defaults.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vitrelle {

/// What a missing value means.
enum class Absence {
  readsAsDefault, ///< the same as the default
  isAState, ///< readers may tell it from every value; where one is needed, the default stands in
};

/// The type of a constant for values of T. Blobs and dates have none.
template <class T>
struct ConstantOf {
  using Type = T;
};
template <>
struct ConstantOf<std::string> {
  using Type = std::string_view;
};
template <>
struct ConstantOf<Data> {
  using Type = std::monostate;
};
template <>
struct ConstantOf<Date> {
  using Type = std::monostate;
};

template <class T>
struct Key {
  Suite suite;
  const char* name;
  Absence absence;
  typename ConstantOf<T>::Type defaultValue{};
};

/// The value as the type that a reader asks for. Numbers bridge where nothing is lost: a whole
/// Double or a Bool reads as an Int, 0 and 1 read as a Bool, an Int reads as a Double. Nothing for
/// every other pair of types.
template <class T>
std::optional<T> decodeStored(const StoreValue& value);

} // namespace vitrelle
