#include "core/store/StyleRecord.h"

#include "core/store/RecordFields.h"
#include "tests/core/app/AppTest.h"

namespace vitrelle {
namespace {

class StyleRecordTest : public test::AppTest {};

TEST_F(StyleRecordTest, everyFamily_isReadAndSavedAsItsOwnRecords) {
  const GroupStore store(platform);
  forEachFamily([&](const auto& family) {
    const FamilyStore& any = familyStore(family.name);
    std::vector<StyleRecord> records{any.newRecord(0), any.newRecord(1)};
    setLinkedStyle(records[1], StyleNumber{4});
    EXPECT_TRUE(any.save(store, records)) << family.name;
    EXPECT_TRUE(any.save(store, *any.read(store))) << family.name;
    const auto typed = store.loadRecords(family);
    ASSERT_EQ(typed.size(), 2U) << family.name;
    EXPECT_EQ(typed[1].*family.linked, 4);
    EXPECT_EQ(tagOf(records[1]), RecordIndex{1});
    EXPECT_EQ(linkedStyle(records[1]), StyleNumber{4});
    EXPECT_FALSE(linkedStyle(records[0]));
    setLinkedStyle(records[1], std::nullopt);
    EXPECT_FALSE(linkedStyle(records[1]));
  });
  EXPECT_DEATH(familyStore("nothing"), "there is no widget family nothing");
}

TEST_F(StyleRecordTest, fields_areSetFromWordsOfTheirKind) {
  StyleRecord record = familyStore("battery").newRecord(0);
  for (const auto& [field, words] : {std::pair{"batteryType", "-7"},
                                     {"batteryShowSymbol", "false"},
                                     {"batterySymbol", "a=b"},
                                     {"batteryRingColour", "#ff8000"},
                                     {"batteryFont", ""}})
    EXPECT_TRUE(setField(record, field, words).ok()) << field;
  const auto& set = std::get<batteryWidgetData>(record);
  EXPECT_EQ(set.batteryType, -7);
  EXPECT_FALSE(set.batteryShowSymbol);
  EXPECT_EQ(set.batterySymbol, "a=b");
  EXPECT_EQ(set.batteryRingColour, Colour::parse("FF8000"));
  EXPECT_EQ(set.batteryFont, "");

  const StyleRecord before = record;
  for (const auto& [field, words] : {std::pair{"batteryType", "1.5"},
                                     {"batteryType", "99999999999999999999"},
                                     {"batteryShowSymbol", "yes"},
                                     {"batteryRingColour", "red"},
                                     {"BatteryType", "1"},
                                     {"", "1"}}) {
    const Status status = setField(record, field, words);
    ASSERT_FALSE(status.ok()) << field << " " << words;
    EXPECT_EQ(status.failure().what, field);
  }
  EXPECT_EQ(record, before);
  EXPECT_EQ(fieldNames(record).front(), "id");
  EXPECT_EQ(fieldNames(record).size(), 11U);
}

} // namespace
} // namespace vitrelle
