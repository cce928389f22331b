#include "core/lifecycle/WidgetLook.h"

#include "core/drawing/Describe.h"
#include "tests/core/lifecycle/LifecycleTest.h"

namespace vitrelle {
namespace {

class WidgetLookTest : public test::LifecycleTest {
 protected:
  std::string shown() {
    const auto record = shownRecord(platform, styleFamily("text"));
    return record ? std::get<textWidgetData>(*record).textWidgetText : "nothing";
  }
};

TEST_F(WidgetLookTest, record_isTheLinkedOneElseTheChosenElseTheFirst) {
  EXPECT_EQ(shown(), "nothing");
  storeStyles(4);
  EXPECT_EQ(shown(), "0");
  setNumber("textSelectedConfig", 2);
  EXPECT_EQ(shown(), "2");
  setNumber("textSelectedConfig", 9);
  EXPECT_EQ(shown(), "0");
  auto records = stored();
  records[3].textLinkedConfig = 1;
  store(records);
  EXPECT_EQ(shown(), "0");
  setNumber("selectedConfig", 1);
  EXPECT_EQ(shown(), "3");
  setNumber("selectedConfig", noLinkedConfig); // of a damaged store: linked to none is no link
  EXPECT_EQ(shown(), "0");
  damage();
  EXPECT_EQ(shown(), "nothing");
}

TEST_F(WidgetLookTest, backdrop_isThatOfTheLinkElseOfTheStyleInUse) {
  storeStyles(1);
  StyleRecord record = stored()[0];
  addSlice("topMedium", 0, lightStyle);
  addSlice("topMedium", 3, lightStyle);
  const auto backdrop = [&] {
    return widgetBackdrop(platform, record, WidgetLocationImageNames::mediumTop);
  };
  EXPECT_EQ(backdrop(), (SliceName{"topMedium", {0}, lightStyle}));
  setLinkedStyle(record, StyleNumber{3});
  EXPECT_EQ(backdrop(), (SliceName{"topMedium", {3}, lightStyle}));
  setLinkedStyle(record, StyleNumber{5});
  EXPECT_EQ(backdrop(), (SliceName{"topMedium", {0}, lightStyle}));
  phone.userInterfaceStyle = darkStyle;
  EXPECT_FALSE(backdrop());
}

} // namespace
} // namespace vitrelle
