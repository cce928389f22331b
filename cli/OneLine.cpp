#include "cli/OneLine.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace vitrelle::cli {

namespace {

struct CodePoint {
  char32_t value = 0;
  std::size_t bytes = 0; ///< 0 where the text does not begin with one
};

/// Of text that is not empty.
CodePoint firstCodePoint(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const char32_t lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  const std::size_t bytes = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || text.size() < bytes) return {};
  char32_t value = lead & (0x7FU >> bytes);
  for (std::size_t i = 1; i < bytes; ++i) {
    if ((byte(i) & 0xC0U) != 0x80) return {};
    value = value << 6 | (byte(i) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  if (value < least[bytes] || value > 0x10FFFF || surrogate) return {};
  return {value, bytes};
}

struct Range {
  char32_t first;
  char32_t last;
};

constexpr Range steering[] = {
    {0x00, 0x1F},     {0x7F, 0x9F},     // controls
    {0x2028, 0x2029},                   // separators of lines and paragraphs
    {0x202A, 0x202E}, {0x2066, 0x2069}, // embeddings, overrides and isolates of direction
};

bool steers(char32_t value) {
  return std::ranges::any_of(steering, [value](const Range& range) {
    return value >= range.first && value <= range.last;
  });
}

std::string escape(char32_t value) {
  if (value == '\n') return "\\n";
  if (value == '\r') return "\\r";
  if (value == '\t') return "\\t";
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), value < 0x80 ? "\\x%02x" : "\\u%04x",
                static_cast<unsigned>(value));
  return text.data();
}

std::string escapeByte(char byte) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "\\x%02x",
                static_cast<unsigned>(static_cast<unsigned char>(byte)));
  return text.data();
}

} // namespace

std::string oneLine(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const CodePoint first = firstCodePoint(text);
    const std::size_t bytes = first.bytes == 0 ? 1 : first.bytes;
    if (first.bytes == 0)
      result += escapeByte(text.front());
    else if (steers(first.value))
      result += escape(first.value);
    else
      result += text.substr(0, bytes);
    text.remove_prefix(bytes);
  }
  return result;
}

std::string quotedLine(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return oneLine(result + '"');
}

} // namespace vitrelle::cli
