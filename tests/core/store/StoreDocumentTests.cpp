// Holds the tables of the store's document against the tables in the code.
#include "core/slicing/PositionIntents.h"
#include "core/store/Family.h"
#include "core/store/RecordFields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace vitrelle {
namespace {

using Rows = std::vector<std::string>;

/// The rows of the table under the heading, each cut after so many columns: what follows is for
/// readers alone.
Rows documentedRows(const std::string& heading, int columns = 4) {
  std::ifstream document(VITRELLE_STORE_DOCUMENT);
  Rows rows;
  bool inside = false;
  for (std::string line; std::getline(document, line);) {
    if (line.starts_with("#")) inside = line == heading;
    if (!inside || !line.starts_with("| `")) continue;
    std::size_t end = 0;
    for (int column = 0; column < columns; ++column)
      end = line.find(" |", end + 1);
    rows.push_back(line.substr(0, end));
  }
  return rows;
}

template <class... Columns>
std::string row(const char* name, const Columns&... columns) {
  std::ostringstream text;
  text << "| `" << name << "`";
  ((text << " | " << columns), ...);
  return text.str();
}

const char* typeName(const Key<std::int64_t>&) {
  return "Int";
}
const char* typeName(const Key<double>&) {
  return "Double";
}
const char* typeName(const Key<bool>&) {
  return "Bool";
}
const char* typeName(const Key<std::string>&) {
  return "String";
}
const char* typeName(const Key<Data>&) {
  return "Data";
}
const char* typeName(const Key<Date>&) {
  return "Date";
}

std::string shown(bool flag) {
  return flag ? "`true`" : "`false`";
}
std::string shown(std::int64_t number) {
  return "`" + std::to_string(number) + "`";
}
std::string shown(double number) {
  return shown(static_cast<std::int64_t>(number));
}
std::string shown(std::string_view text) {
  return "`\"" + std::string(text) + "\"`";
}
std::string shown(std::monostate) {
  return "none";
}
std::string shown(const Colour& colour) {
  return "`\"" + colour.hex(false).value_or("") + "\"`";
}

const char* jsonType(std::int64_t) {
  return "number";
}
const char* jsonType(bool) {
  return "bool";
}
const char* jsonType(const std::string&) {
  return "string";
}
const char* jsonType(const Colour&) {
  return "colour";
}

template <class Keys>
Rows keyRows(const Keys& keys) {
  Rows rows;
  const auto add = [&](const auto& key) {
    rows.push_back(row(key.name, typeName(key),
                       key.absence == Absence::isAState ? "a state" : "as default",
                       shown(key.defaultValue)));
  };
  std::apply([&](const auto&... all) { (add(all), ...); }, keys);
  return rows;
}

TEST(StoreDocument, keys_areThoseOfTheCode) {
  EXPECT_EQ(documentedRows("### Keys of the group store"), keyRows(keys::groupKeys));
  EXPECT_EQ(documentedRows("### Keys of the standard defaults"), keyRows(keys::standardKeys));
}

TEST(StoreDocument, records_areThoseOfTheCode) {
  forEachFamily([]<class Record>(const Family<Record>& family) {
    Rows rows;
    forEachField<Record>([&](const auto& field) {
      const Record record;
      const auto& value = record.*field.member;
      std::string initial = shown(value);
      if constexpr (std::is_same_v<decltype(field.member), decltype(family.tag)>) {
        if (field.member == family.tag) initial = "length of the array";
      }
      rows.push_back(row(field.name, jsonType(value), rows.size(), initial));
    });
    const std::string heading =
        std::string("### `") + family.recordName + "`, under `" + family.records.name + "`";
    EXPECT_EQ(documentedRows(heading), rows) << heading;
  });
}

/// "0 to 2, 6 to 10"
template <class Enumeration>
std::string rangesOf() {
  std::ostringstream text;
  const auto isValue = [](std::int64_t raw) { return fromRawValue<Enumeration>(raw).has_value(); };
  for (std::int64_t raw = 0; raw < 64; ++raw) {
    if (isValue(raw) && !isValue(raw - 1)) text << (raw == 0 ? "" : ", ") << raw;
    if (isValue(raw) && !isValue(raw + 1)) text << " to " << raw;
  }
  return text.str();
}

TEST(StoreDocument, positions_areThoseOfTheCode) {
  const Rows enumerations{
      row("PositionEnumSmall", rangesOf<PositionEnumSmall>()),
      row("PositionEnumMedium", rangesOf<PositionEnumMedium>()),
      row("PositionEnumLarge", rangesOf<PositionEnumLarge>()),
      row("WidgetInformationOptions", rangesOf<WidgetInformationOptions>()),
      row("PositionIntentResponseCode", rangesOf<PositionIntentResponseCode>())};
  EXPECT_EQ(documentedRows("### Enumerations", 2), enumerations);

  Rows slots;
  const auto add = [&]<class Position>(const char* name, WidgetFamily size, Position first) {
    for (auto raw = static_cast<std::int64_t>(first); fromRawValue<Position>(raw); ++raw)
      slots.push_back(row(name, raw, "`" + std::string(rawValue(slotAt(size, raw))) + "`"));
  };
  add("PositionEnumSmall", WidgetFamily::small, PositionEnumSmall::topLeft);
  add("PositionEnumMedium", WidgetFamily::medium, PositionEnumMedium::top);
  add("PositionEnumLarge", WidgetFamily::large, PositionEnumLarge::top);
  EXPECT_EQ(documentedRows("### Slots", 3), slots);
}

TEST(StoreDocument, everyKey_isOfItsSuiteAndNamedOnce) {
  std::vector<std::string> names;
  const auto check = [&](const auto& key, Suite suite) {
    EXPECT_EQ(key.suite, suite) << key.name;
    names.emplace_back(key.name);
  };
  std::apply([&](const auto&... keys) { (check(keys, Suite::group), ...); }, keys::groupKeys);
  std::apply([&](const auto&... keys) { (check(keys, Suite::standard), ...); }, keys::standardKeys);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
}

} // namespace
} // namespace vitrelle
