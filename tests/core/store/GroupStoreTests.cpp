#include "core/store/GroupStore.h"
#include "core/store/RecordCoding.h"
#include "core/store/StoredValue.h"
#include "tests/support/Fakes.h"
#include "tests/support/UnimplementedPlatform.h"

#include <gtest/gtest.h>

namespace vitrelle {
namespace {

class GroupStoreTest : public testing::Test {
 protected:
  GroupStoreTest() {
    defaults.use(platform);
    console.use(platform);
  }
  std::map<std::string, StoreValue>& group() { return defaults.values(Suite::group); }

  Platform platform = test::unimplementedPlatform();
  test::FakeDefaults defaults;
  test::FakeConsole console;
  GroupStore store{platform};
};

TEST_F(GroupStoreTest, emptyStore_readsAsDefaultsAndEmptyArrays) {
  EXPECT_EQ(store.value(keys::amountOfConfigs), std::nullopt);
  EXPECT_EQ(store.valueOrDefault(keys::selectedConfig), 0);
  EXPECT_EQ(store.valueOrDefault(keys::fontSize), 18);
  EXPECT_EQ(store.valueOrDefault(keys::dateColour), "");
  EXPECT_EQ(store.valueOrDefault(keys::quitIfWidgetClicked), false);
  EXPECT_EQ(store.valueOrDefault(keys::storedWeatherTemperatureRaw), 0.0);
  forEachFamily([&](const auto& family) {
    EXPECT_TRUE(store.loadRecords(family).empty()) << family.name;
    EXPECT_EQ(store.valueOrDefault(family.selected), 0) << family.name;
  });
}

TEST_F(GroupStoreTest, savedRecords_standUnderTheFamilysKeyAndReloadTheWidgets) {
  forEachFamily([&]<class Record>(const Family<Record>& family) {
    std::vector<Record> records;
    for (int i = 0; i < 2; ++i)
      records.push_back(newRecord(family, records));
    records[0].*family.linked = 11;
    console.reloads = 0;
    group().clear();
    store.saveRecords(family, records);
    // Through the bytes: a new record's colours are not whole bytes.
    const std::vector<Record> loaded = store.loadRecords(family);
    EXPECT_EQ(*encodeRecords(loaded), *encodeRecords(records)) << family.name;
    EXPECT_EQ(console.reloads, 1) << family.name;
    ASSERT_EQ(group().size(), 1U);
    EXPECT_EQ(group().begin()->first, family.records.name);
  });
  EXPECT_TRUE(console.lines.empty());
}

TEST_F(GroupStoreTest, damagedArray_readsAsEmptyAndTheNextSaveReplacesIt) {
  for (const StoreValue& damaged : {StoreValue(std::string("[]")), StoreValue(std::int64_t{3}),
                                    StoreValue(Data{'[', '{', '}', ']'}), StoreValue(Data{})}) {
    group()["savedTextWidgetData"] = damaged;
    EXPECT_TRUE(store.loadRecords(families::text).empty());
  }
  EXPECT_TRUE(console.lines.empty());
  store.saveRecords(families::text, {textWidgetData{}});
  EXPECT_EQ(store.loadRecords(families::text).size(), 1U);
}

TEST_F(GroupStoreTest, whatCannotBeRead_isToldFromWhatIsNotThere) {
  EXPECT_EQ(*store.read(keys::amountOfConfigs), std::nullopt);
  EXPECT_TRUE(store.readRecords(families::text)->empty());
  EXPECT_TRUE(store.check(Suite::group));
  group()["savedTextWidgetData"] = Data{'['};
  EXPECT_TRUE(store.readRecords(families::text)->empty()) << "damage is no failure to read";
  group()["savedTextWidgetData"] = *encodeRecords(std::vector<textWidgetData>(mostRecords + 1));
  EXPECT_FALSE(store.readRecords(families::text));
  EXPECT_TRUE(store.loadRecords(families::text).empty());
  defaults.broken = {Suite::group};
  EXPECT_FALSE(store.read(keys::amountOfConfigs));
  EXPECT_FALSE(store.readRecords(families::image));
  EXPECT_FALSE(store.check(Suite::group));
}

TEST_F(GroupStoreTest, unencodableRecord_isReportedAndNothingElseHappens) {
  store.saveRecords(families::text, {textWidgetData{}});
  const auto before = group();
  store.saveRecords(families::text, {textWidgetData{}, {.textWidgetText = "\xFF"}});
  EXPECT_EQ(console.lines,
            std::vector<std::string>{"Unable to Encode Data (textWidgetText: not valid UTF-8)"});
  EXPECT_EQ(group(), before);
  EXPECT_EQ(console.reloads, 1);
}

TEST_F(GroupStoreTest, storeThatCannotBeOpened_readsAsAbsentAndStillReloads) {
  store.set(keys::selectedConfig, std::int64_t{2});
  defaults.broken = {Suite::group};
  EXPECT_EQ(store.value(keys::selectedConfig), std::nullopt);
  store.set(keys::selectedConfig, std::int64_t{3});
  store.saveRecords(families::clock, {clockWidgetData{}});
  EXPECT_EQ(console.reloads, 1);
  EXPECT_TRUE(store.loadRecords(families::clock).empty());
  defaults.broken = {};
  EXPECT_EQ(store.value(keys::selectedConfig), 2);
  EXPECT_FALSE(group().contains("savedClockWidgetData"));
}

TEST_F(GroupStoreTest, storedValue_followsEveryWriterOfItsKey) {
  const StoredValue<bool> flag(platform, keys::betaEnrollment);
  const StoredValue<bool> twin(platform, keys::betaEnrollment);
  std::vector<std::optional<bool>> seen;
  Subscription subscription = flag.onChange([&](const auto& value) { seen.push_back(value); });
  twin.set(true);
  EXPECT_EQ(flag.get(), true);
  ASSERT_TRUE(platform.defaults.set(Suite::standard, "beta_enrollment", std::int64_t{0}));
  ASSERT_TRUE(platform.defaults.set(Suite::standard, "beta_enrollment", std::string("yes")));
  EXPECT_EQ(flag.getOrDefault(), false);
  subscription.cancel();
  twin.set(true);
  EXPECT_EQ(seen, (std::vector<std::optional<bool>>{std::nullopt, true, false, std::nullopt}));
  EXPECT_TRUE(group().empty());
}

} // namespace
} // namespace vitrelle
