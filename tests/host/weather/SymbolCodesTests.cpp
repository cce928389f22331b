#include "host/weather/SymbolCodes.h"

#include "host/symbols/Symbols.h"

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vitrelle::host {
namespace {

/// All that the service may send, put together as it puts them together.
std::vector<std::string> codesOfTheService() {
  std::vector<std::string> codes = {"cloudy", "fog"};
  const auto addParts = [&](const std::string& code) {
    for (const char* part : {"_day", "_night", "_polartwilight"})
      codes.push_back(code + part);
  };
  for (const char* code : {"clearsky", "fair", "partlycloudy"})
    addParts(code);
  for (const std::string kind : {"rain", "sleet", "snow"}) {
    for (const std::string strength : {"light", "", "heavy"}) {
      for (const std::string thunder : {"", "andthunder"}) {
        codes.push_back(strength + kind + thunder);
        addParts(strength + kind + "showers" + thunder);
      }
    }
    if (kind != "rain") addParts("lights" + kind + "showersandthunder");
  }
  return codes;
}

/// "mostlyClear" as "Mostly Clear".
std::string inWords(std::string_view rawValue) {
  std::string words;
  for (const char c : rawValue) {
    const bool isCapital = std::isupper(static_cast<unsigned char>(c)) != 0;
    if (isCapital) words += ' ';
    words += words.empty() ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
  }
  return words;
}

TEST(SymbolCodes, everyCodeOfTheService_hasItsWordsAndPictures) {
  const Symbols symbols = makeSymbols();
  for (const std::string& code : codesOfTheService()) {
    const auto sky = skyOf(code);
    ASSERT_TRUE(sky) << code;
    EXPECT_EQ(sky->conditionDescription, inWords(sky->condition)) << code;
    const std::string kind(sky->precipitation);
    EXPECT_EQ(code.find(kind) != std::string::npos, kind != "none") << code;
    for (const char* suffix : {"", ".fill"}) {
      const std::string name = std::string(sky->symbolName) + suffix;
      const SymbolMatch match = symbols.match(name);
      EXPECT_TRUE(match != SymbolMatch::fallback && match != SymbolMatch::stripped)
          << code << ' ' << name;
    }
  }
}

TEST(SymbolCodes, noCode_isToldTwice) {
  std::set<std::string_view> codes;
  for (const SymbolCodeRow& row : symbolCodeRows())
    EXPECT_TRUE(codes.insert(row.code).second) << row.code;
  EXPECT_EQ(codes.size(), 43U) << "41 of the service, 2 of them in two spellings";
}

TEST(SymbolCodes, partOfTheDay_choosesTheSky) {
  struct Case {
    const char* code;
    const char* condition;
    const char* symbol;
  };
  for (const auto& [code, condition, symbol] :
       {Case{"clearsky_day", "clear", "sun.max"}, Case{"clearsky_night", "clear", "moon.stars"},
        Case{"clearsky", "clear", "sun.max"},
        Case{"partlycloudy_polartwilight", "partlyCloudy", "cloud.moon"},
        Case{"lightrainshowers_day", "sunShowers", "cloud.sun.rain"},
        Case{"lightrainshowers_night", "drizzle", "cloud.moon.rain"},
        Case{"lightrainshowers_polartwilight", "drizzle", "cloud.moon.rain"},
        Case{"heavyrain", "heavyRain", "cloud.heavyrain"},
        Case{"heavyrain_night", "heavyRain", "cloud.heavyrain"},
        Case{"lightssnowshowersandthunder_night", "isolatedThunderstorms", "cloud.moon.bolt"}}) {
    const auto sky = skyOf(code);
    ASSERT_TRUE(sky) << code;
    EXPECT_EQ(sky->condition, condition) << code;
    EXPECT_EQ(sky->symbolName, symbol) << code;
  }
}

TEST(SymbolCodes, others_areNotKnown) {
  for (const char* code : {"", "_day", "day", "rain_dusk", "Rain", "rain_day_night", "rain ",
                           "raining", "lightssrain", "rain_"}) {
    EXPECT_FALSE(skyOf(code)) << code;
  }
}

} // namespace
} // namespace vitrelle::host
