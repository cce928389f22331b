#include "cli/OneLine.h"

#include <gtest/gtest.h>

namespace vitrelle::cli {
namespace {

TEST(OneLine, whatSteersATerminal_isEscapedAndTheRestIsNot) {
  using namespace std::string_literals;
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"/home/jürgen/Bild 1 \\n 日本 🙂.png", "/home/jürgen/Bild 1 \\n 日本 🙂.png"},
      {"a\nb\r\tc", "a\\nb\\r\\tc"},
      {"\0\x1b[31m\x7f"s, "\\x00\\x1b[31m\\x7f"},
      {"\u0080\u0085\u009b1m", "\\u0080\\u0085\\u009b1m"},
      {"a\u2028b\u2029\u202egnp\u2066", "a\\u2028b\\u2029\\u202egnp\\u2066"},
      {"\x9b"
       "31m \xff",
       "\\x9b31m \\xff"},                                                          // bytes alone
      {"\xc0\x8a \xe0\x80\x8a \xc1\xbf", "\\xc0\\x8a \\xe0\\x80\\x8a \\xc1\\xbf"}, // overlong
      {"\xed\xa0\x80", "\\xed\\xa0\\x80"},                                         // a surrogate
      {"\xf4\x90\x80\x80 \xf5", "\\xf4\\x90\\x80\\x80 \\xf5"},                     // above the last
      {"\u00a0\ud7ff\ue000\U0010ffff", "\u00a0\ud7ff\ue000\U0010ffff"},
      {"\xe2\x80", "\\xe2\\x80"}, // cut short
      {"\xe2\x80\n", "\\xe2\\x80\\n"},
  };
  for (const auto& [text, expected] : cases)
    EXPECT_EQ(oneLine(text), expected);
  EXPECT_EQ(quotedLine("say \"\\n\"\n"), R"("say \"\\n\"\n")");
}

} // namespace
} // namespace vitrelle::cli
