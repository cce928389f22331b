#include "core/lifecycle/StyleFlow.h"

#include "tests/core/lifecycle/LifecycleTest.h"

#include <string>

namespace vitrelle {
namespace {

/// The pages of a flow, from the bottom, in words.
struct PageName {
  std::string operator()(const std::shared_ptr<StyleKinds>&) const { return "kinds"; }
  std::string operator()(const std::shared_ptr<StyleSetup>& page) const {
    const bool isNew = page->task().mode == EditorMode::create;
    return isNew ? "setup of a new " + page->task().kind
                 : "setup of " + std::to_string(page->task().configNumber.value);
  }
  std::string operator()(const std::shared_ptr<StyleSecond>&) const { return "second"; }
  std::string operator()(const std::shared_ptr<StyleGallery>&) const { return "gallery"; }
  std::string operator()(const std::shared_ptr<StyleAssign>&) const { return "assign"; }
  std::string operator()(const std::shared_ptr<StylePreview>&) const { return "preview"; }
};

class StyleFlowTest : public test::LifecycleTest {
 protected:
  StyleFlow flow(std::string_view family, FlowStart start) {
    return {platform, styleFamily(family), start, [this] { ++closings; }};
  }
  static std::string pages(const StyleFlow& flow) {
    std::string names;
    for (const FlowPage& page : flow.pages())
      names += (names.empty() ? "" : ", ") + std::visit(PageName(), page);
    return names;
  }
  static void appear(StyleFlow& flow) {
    std::visit(
        [](const auto& page) {
          if constexpr (requires { page->appear(); }) page->appear();
        },
        flow.pages().back());
  }

  int closings = 0;
};

TEST_F(StyleFlowTest, newStyle_goesThroughBothStepsAndOut) {
  auto text = flow("text", FlowStart::create);
  EXPECT_EQ(pages(text), "setup of a new ");
  appear(text);
  EXPECT_EQ(text.saveSetup(), Saved::stored);
  EXPECT_EQ(pages(text), "setup of a new , second");
  EXPECT_FALSE(text.canGoBack()) << "its form would make another";
  appear(text);
  EXPECT_EQ(text.saveSecond(), Saved::stored);
  EXPECT_EQ(closings, 1);
  text.close();
  EXPECT_EQ(closings, 1);
  EXPECT_EQ(stored().size(), 1U);
}

TEST_F(StyleFlowTest, familyWithKinds_asksForOneFirst) {
  auto clock = flow("clock", FlowStart::create);
  EXPECT_EQ(pages(clock), "kinds");
  clock.pickKind(clock.family().kinds()[1]);
  EXPECT_EQ(pages(clock), "kinds, setup of a new digital");
  clock.pickKind(clock.family().kinds()[0]);
  EXPECT_EQ(pages(clock), "kinds, setup of a new digital") << "the kinds are not shown";
  clock.back();
  EXPECT_EQ(pages(clock), "kinds");
  clock.back();
  EXPECT_EQ(closings, 1);
}

TEST_F(StyleFlowTest, gallery_isComeBackToFromTheEditor) {
  storeStyles(3);
  auto text = flow("text", FlowStart::gallery);
  appear(text);
  text.edit({2});
  EXPECT_EQ(pages(text), "gallery, setup of 2");
  const auto& gallery = *std::get<std::shared_ptr<StyleGallery>>(text.pages().front());
  EXPECT_TRUE(gallery.showEdit());
  appear(text);
  text.back();
  EXPECT_EQ(pages(text), "gallery");
  EXPECT_FALSE(gallery.showEdit());

  text.edit({1});
  appear(text);
  text.saveSetup();
  EXPECT_TRUE(text.canGoBack());
  appear(text);
  text.saveSecond();
  EXPECT_EQ(pages(text), "gallery");
  EXPECT_EQ(closings, 0);
  text.back();
  EXPECT_EQ(closings, 1);
}

TEST_F(StyleFlowTest, linkingScreen_standsOverTheGalleryUntilItIsDone) {
  setNumber("amountOfConfigs", 2);
  storeStyles(2);
  auto text = flow("text", FlowStart::gallery);
  appear(text);
  text.assign({0});
  ASSERT_TRUE(text.assignSheet());
  text.assignSheet()->appear();
  EXPECT_EQ(text.saveLink(), Saved::stored);
  EXPECT_FALSE(text.assignSheet());
  EXPECT_EQ(stored()[0].textLinkedConfig, 0);

  text.assign({1});
  text.assignSheet()->appear();
  EXPECT_EQ(text.saveLink(), Saved::refused) << "taken by the other";
  EXPECT_TRUE(text.assignSheet());
  text.dismissAssign();
  EXPECT_FALSE(text.assignSheet());
  EXPECT_EQ(pages(text), "gallery");

  auto alone = flow("text", FlowStart::assign);
  appear(alone);
  std::get<std::shared_ptr<StyleAssign>>(alone.pages().front())->pick(std::nullopt);
  EXPECT_EQ(alone.saveLink(), Saved::stored);
  EXPECT_EQ(closings, 1);
}

TEST_F(StyleFlowTest, entry_holdsTheFlowOfItsSheet) {
  storeStyles(1);
  StyleEntry entry(platform, styleFamily("text"));
  entry.appear();
  entry.tapGallery();
  ASSERT_TRUE(entry.flow());
  const std::shared_ptr<StyleFlow> leaving = entry.flow();
  leaving->close();
  EXPECT_FALSE(entry.flow());
  EXPECT_EQ(pages(*leaving), "gallery") << "whoever still draws it can";
}

} // namespace
} // namespace vitrelle
