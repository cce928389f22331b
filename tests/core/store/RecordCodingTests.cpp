#include "core/store/Family.h"
#include "core/store/RecordCoding.h"
#include "core/store/RecordFields.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace vitrelle {
namespace {

Data bytes(std::string_view text) {
  return {text.begin(), text.end()};
}

template <class Record>
std::string encoded(const std::vector<Record>& records) {
  const Result<Data> json = encodeRecords(records);
  return json ? std::string(json->begin(), json->end()) : json.failure().what + json.failure().why;
}

/// Gives every field another value than a new record has, and than any other field of its type,
/// as far as the type goes.
struct Distinct {
  int count = 0;
  void operator()(std::int64_t& value) { value = -++count; }
  void operator()(bool& value) { value = !value; }
  void operator()(std::string& value) { value = "\"ü\n/" + std::to_string(++count); }
  void operator()(Colour& value) { value = {0, 0, static_cast<float>(++count / 255.0)}; }
};

TEST(RecordCoding, newRecords_areEncodedInFieldOrder) {
  const auto digest = [](const auto& family) {
    using Record = std::remove_cvref_t<decltype(newRecord(family, {}))>;
    return encoded(std::vector{newRecord(family, std::vector<Record>(4))});
  };
  EXPECT_EQ(digest(families::text),
            R"([{"id":0,"textConfigTag":4,"textWidgetText":"","textWidgetFont":"",)"
            R"("textWidgetSize":18,"textWidgetShadow":true,"textWidgetTextColour":"FFFFFF",)"
            R"("textLinkedConfig":13}])");
  EXPECT_EQ(digest(families::music),
            R"([{"id":0,"musicConfigTag":4,"musicShowAlbumArt":true,"musicShowAlbumName":true,)"
            R"("musicShowArtistName":true,"musicColourOfSongName":"FFFFFF",)"
            R"("musicColourOfAlbumName":"FFFFFF","musicColourOfArtistName":"FFFFFF",)"
            R"("musicLinkedConfig":13}])");
  EXPECT_EQ(digest(families::image),
            R"([{"id":0,"imageConfigTag":4,"imageSize":0,"imageShowShadow":true,)"
            R"("imagePosition":"centre","imageLinkedConfig":13}])");
  EXPECT_EQ(digest(families::battery),
            R"([{"id":0,"batteryType":0,"batteryConfigTag":4,"batteryShowSymbol":true,)"
            R"("batterySymbol":"iphone","batteryShowPercentage":true,"batteryFont":"Helvetica",)"
            R"("batteryRingColour":"FFFFFF","batteryIconColour":"FFFFFF",)"
            R"("batteryTextColour":"FFFFFF","batteryLinkedConfig":13}])");
  EXPECT_EQ(digest(families::weather),
            R"([{"id":0,"weatherConfigTag":4,"showCurrentWeatherSymbol":true,)"
            R"("currentWeatherMulticolour":true,"currentWeatherSymbolColour":"FFFFFF",)"
            R"("currentWeatherTextColour":"FFFFFF","showCurrentWeatherDescription":true,)"
            R"("showLocationSymbol":true,"locationSymbolColour":"63E6E3",)"
            R"("locationTextColour":"63E6E3","descriptionColour":"FFFFFF",)"
            R"("weatherLinkedConfig":13}])");
  EXPECT_EQ(digest(families::clock),
            R"([{"id":0,"clockConfigTag":4,"clockWidgetDateEnabled":false,)"
            R"("clockWidgetDateLength":0,"clockWidgetDatePlacement":0,"clockWidgetDateSize":16,)"
            R"("clockWidgetDateFont":"","clockWidgetDateColour":"FFFFFF",)"
            R"("clockWidgetAnalogComplexity":0,"clockWidgetAnalogDialShape":0,)"
            R"("clockWidgetAnalogDialShapeColour":"FFFFFF","clockWidgetAnalogArmsColour":"FFFFFF",)"
            R"("clockWidgetAnalogHoursShape":0,"clockWidgetAnalogHoursColour":"FFFFFF",)"
            R"("clockWidgetDigitalFont":"","clockWidgetDigitalSize":16,)"
            R"("clockWidgetDigitalColour":"FFFFFF","clockLinkedConfig":13}])");
}

TEST(RecordCoding, everyFieldOfEveryFamily_survivesStoring) {
  forEachFamily([]<class Record>(const Family<Record>&) {
    std::vector<Record> records(3);
    Distinct change;
    for (Record& record : records) {
      forEachField<Record>([&](const auto& field) { change(record.*field.member); });
    }
    const Result<Data> json = encodeRecords(records);
    ASSERT_TRUE(json);
    EXPECT_EQ(decodeRecords<Record>(*json), records) << encoded(records);
  });
  EXPECT_EQ(encoded<textWidgetData>({}), "[]");
  EXPECT_EQ(decodeRecords<textWidgetData>(bytes(" [] ")), std::vector<textWidgetData>());
}

TEST(RecordCoding, oneFieldAmiss_failsTheWholeArray) {
  const std::string good =
      R"({"id":0,"imageConfigTag":1,"imageSize":2,"imageShowShadow":true,"imagePosition":"centre","imageLinkedConfig":13})";
  struct Case {
    const char* was;
    const char* is;
    bool decodes;
  };
  const Case cases[] = {
      {"2,", "2,", true},
      {"2,", "2.0,", true},
      {"2,", "2e3,", true},
      {"2,", "-9223372036854775808,", true},
      {"2,", R"(2,"extra":{"imageSize":[[null]]},)", true},
      {"2,", "2.5,", false},
      {"2,", "9223372036854775807,", true},
      {"2,", "9223372036854775808,", false},
      {"2,", "-9223372036854775809,", false},
      {"2,", "1e19,", false},
      {"2,", "1e999,", false},
      {"2,", "true,", false},
      {"2,", "\"2\",", false},
      {"2,", "null,", false},
      {"2,", "[2],", false},
      {"2,", R"([2],"imageSize":2,)", true},
      {"2,", R"(2,"imageSize":{},)", false},
      {"2,", R"("x","imageSize":2,)", true},
      {"true", "1", false},
      {"true", "null", false},
      {"\"centre\"", "null", false},
      {"\"centre\"", "0", false},
      {"\"centre\"", "{}", false},
      {"\"centre\"", "\"\\ud800\"", false},
      {"\"centre\"", "\"\xFF\"", false},
      {"imageSize", "imagesize", false},
      {"\"id\":0,", "", false},
      {"}", "", false},
      {"}", ",}", false},
  };
  for (const Case& item : cases) {
    std::string changed = good;
    changed.replace(changed.find(item.was), std::string_view(item.was).size(), item.is);
    const auto decoded = decodeRecords<imageWidgetData>(bytes("[" + good + "," + changed + "]"));
    EXPECT_EQ(decoded.has_value(), item.decodes) << changed;
  }
  for (const char* text :
       {"", "{}", "0", "null", "\"[]\"", "[null]", "[[]]", "[{}]", "[] x", "[,]"}) {
    EXPECT_EQ(decodeRecords<imageWidgetData>(bytes(text)), std::nullopt) << text;
  }
}

TEST(RecordCoding, unresolvedColour_isStoredAsNullAndFailsToDecode) {
  textWidgetData record;
  record.textWidgetTextColour = Colour::unresolved();
  const std::string json = encoded(std::vector{record});
  EXPECT_NE(json.find(R"("textWidgetTextColour":null)"), std::string::npos) << json;
  EXPECT_EQ(decodeRecords<textWidgetData>(bytes(json)), std::nullopt);
}

TEST(RecordCoding, transparentColour_comesBackOpaque) {
  musicWidgetData record;
  record.musicColourOfSongName = {1, 0, 0, 0.5F};
  const auto decoded = decodeRecords<musicWidgetData>(bytes(encoded(std::vector{record})));
  ASSERT_TRUE(decoded);
  EXPECT_EQ(decoded->at(0).musicColourOfSongName, (Colour{1, 0, 0, 1}));
}

TEST(RecordCoding, manyRecords_areReadToOneBeyondTheMost) {
  const auto array = [](std::size_t count, const std::string& rest) {
    const std::string whole = encoded(std::vector<imageWidgetData>(count));
    return bytes(whole.substr(0, whole.size() - 1) + rest);
  };
  EXPECT_EQ(decodeRecords<imageWidgetData>(array(mostRecords, "]"))->size(), mostRecords);
  EXPECT_EQ(decodeRecords<imageWidgetData>(array(mostRecords + 1, ",garbage"))->size(),
            mostRecords + 1);
  EXPECT_EQ(decodeRecords<imageWidgetData>(array(mostRecords, ",garbage")), std::nullopt);
}

TEST(RecordCoding, deepAndLongTexts_areRefusedWithoutHarm) {
  constexpr std::size_t length = 1'000'000;
  for (const char* piece : {"[", "{\"a\":", "[[{\"id\":", "[0,", "[{\"a\":["}) {
    std::string text;
    while (text.size() < length)
      text += piece;
    EXPECT_EQ(decodeRecords<clockWidgetData>(bytes(text)), std::nullopt) << piece;
  }
  const std::string nest = std::string(length, '[') + std::string(length, ']');
  EXPECT_EQ(decodeRecords<clockWidgetData>(bytes(nest)), std::nullopt);
}

} // namespace
} // namespace vitrelle
