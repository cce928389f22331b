#include "core/store/Colour.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace vitrelle {

namespace {

/// The white space and line breaks of Unicode, in UTF-8.
constexpr std::array<std::string_view, 25> whiteSpaces{
    "\t",           "\n",           "\v",           "\f",           "\r",           " ",
    "\xC2\x85",     "\xC2\xA0",     "\xE1\x9A\x80", "\xE2\x80\x80", "\xE2\x80\x81", "\xE2\x80\x82",
    "\xE2\x80\x83", "\xE2\x80\x84", "\xE2\x80\x85", "\xE2\x80\x86", "\xE2\x80\x87", "\xE2\x80\x88",
    "\xE2\x80\x89", "\xE2\x80\x8A", "\xE2\x80\xA8", "\xE2\x80\xA9", "\xE2\x80\xAF", "\xE2\x81\x9F",
    "\xE3\x80\x80"};

/// The length in bytes of the white space at which the text starts or ends; 0 if there is none.
std::size_t whiteSpaceAtStart(std::string_view text) {
  for (const std::string_view space : whiteSpaces) {
    if (text.starts_with(space)) return space.size();
  }
  return 0;
}

std::size_t whiteSpaceAtEnd(std::string_view text) {
  for (const std::string_view space : whiteSpaces) {
    if (text.ends_with(space)) return space.size();
  }
  return 0;
}

std::string_view withoutLeadingWhiteSpace(std::string_view text) {
  while (const std::size_t length = whiteSpaceAtStart(text))
    text.remove_prefix(length);
  return text;
}

std::string_view trimmed(std::string_view text) {
  text = withoutLeadingWhiteSpace(text);
  while (const std::size_t length = whiteSpaceAtEnd(text))
    text.remove_suffix(length);
  return text;
}

/// Code points of UTF-8 text.
std::ptrdiff_t characterCount(std::string_view text) {
  return std::count_if(text.begin(), text.end(),
                       [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; });
}

/// The hexadecimal number at the start of the text, as the platform's scanner reads one: after
/// white space and "0x", as far as the digits go, the highest number when there are too many.
std::uint64_t scannedHex(std::string_view text) {
  text = withoutLeadingWhiteSpace(text);
  if (text.starts_with("0x") || text.starts_with("0X")) text.remove_prefix(2);
  std::uint64_t number = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), number, 16);
  return end.ec == std::errc::result_out_of_range ? UINT64_MAX : number;
}

float component(std::uint64_t number, int shift) {
  return static_cast<float>(static_cast<double>(number >> shift & 0xFF) / 255.0);
}

} // namespace

Colour Colour::parse(std::string_view text) {
  std::string digits(trimmed(text));
  std::erase(digits, '#');
  const std::uint64_t number = scannedHex(digits);
  switch (characterCount(digits)) {
  case 6:
    return {component(number, 16), component(number, 8), component(number, 0)};
  case 8:
    return {component(number, 24), component(number, 16), component(number, 8),
            component(number, 0)};
  default:
    return {};
  }
}

bool Colour::isWritten(std::string_view text) {
  if (text.starts_with('#')) text.remove_prefix(1);
  return (text.size() == 6 || text.size() == 8) &&
         text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

std::optional<std::string> Colour::hex(bool includeAlpha) const {
  if (!resolved) return std::nullopt;
  const auto byte = [](float part) { return static_cast<unsigned long>(std::lround(part * 255)); };
  std::array<char, 4 * 16 + 1> digits{}; // a component far outside 0 to 1 takes up to 16
  std::snprintf(digits.data(), digits.size(),
                includeAlpha ? "%02lX%02lX%02lX%02lX" : "%02lX%02lX%02lX", byte(red), byte(green),
                byte(blue), byte(alpha));
  return digits.data();
}

} // namespace vitrelle
