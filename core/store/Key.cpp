#include "core/store/Key.h"

#include <cmath>

namespace vitrelle {

namespace {

std::optional<std::int64_t> wholeNumber(double number) {
  // Both bounds are powers of two, so they are exact; not-a-number fails every comparison.
  const bool fits = number >= -0x1p63 && number < 0x1p63;
  if (!fits || number != std::trunc(number)) return std::nullopt;
  return static_cast<std::int64_t>(number);
}

} // namespace

template <>
std::optional<std::int64_t> decodeStored(const StoreValue& value) {
  if (const auto* number = std::get_if<std::int64_t>(&value)) return *number;
  if (const auto* number = std::get_if<double>(&value)) return wholeNumber(*number);
  if (const auto* flag = std::get_if<bool>(&value)) return *flag ? 1 : 0;
  return std::nullopt;
}

template <>
std::optional<bool> decodeStored(const StoreValue& value) {
  const std::optional<std::int64_t> number = decodeStored<std::int64_t>(value);
  if (number != 0 && number != 1) return std::nullopt;
  return number == 1;
}

template <>
std::optional<double> decodeStored(const StoreValue& value) {
  if (const auto* number = std::get_if<double>(&value)) return *number;
  if (const auto* number = std::get_if<std::int64_t>(&value)) {
    const auto real = static_cast<double>(*number);
    if (wholeNumber(real) == *number) return real;
  }
  return std::nullopt;
}

template <class T>
std::optional<T> decodeStored(const StoreValue& value) {
  const auto* stored = std::get_if<T>(&value);
  return stored ? std::optional(*stored) : std::nullopt;
}

template std::optional<std::string> decodeStored(const StoreValue&);
template std::optional<Data> decodeStored(const StoreValue&);
template std::optional<Date> decodeStored(const StoreValue&);

} // namespace vitrelle
