// Text styles in a platform in memory.
#pragma once

#include "core/families/Families.h"
#include "core/lifecycle/StyleEntry.h"
#include "core/store/GroupStore.h"
#include "tests/core/app/AppTest.h"

#include <string>
#include <vector>

namespace vitrelle::test {

class LifecycleTest : public AppTest {
 protected:
  LifecycleTest() { FakeDrawing::use(platform); }

  std::vector<textWidgetData> stored() const {
    return GroupStore(platform).loadRecords(families::text);
  }
  void store(const std::vector<textWidgetData>& records) {
    GroupStore(platform).saveRecords(families::text, records);
    console.reloads = 0;
  }
  /// Styles with the words "0", "1" and so on.
  void storeStyles(std::int64_t count) {
    std::vector<textWidgetData> records;
    for (std::int64_t i = 0; i < count; ++i) {
      textWidgetData record = newRecord(families::text, records);
      record.textWidgetText = std::to_string(i);
      records.push_back(record);
    }
    store(records);
  }
  void damage() {
    defaults.values(Suite::group).insert_or_assign("savedTextWidgetData", Data{'[', '{'});
  }
  void addSlice(const std::string& stem, std::int64_t style, InterfaceStyle appearance) {
    folder.images.insert_or_assign(sliceFileName({style}, stem, appearance), positionImage(4, 4));
  }
};

} // namespace vitrelle::test
