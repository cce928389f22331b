#include "core/families/image/ImageFamily.h"

#include "core/drawing/Describe.h"
#include "core/lifecycle/WidgetLook.h"
#include "core/slicing/ImageOverlay.h"
#include "tests/core/lifecycle/LifecycleTest.h"

#include <optional>
#include <variant>

namespace vitrelle {
namespace {

class ImageFamilyTest : public test::LifecycleTest {
 protected:
  ImageFamilyTest() {
    // What happens in which order while something is saved.
    platform.images.resized = [this, resized = platform.images.resized](const Image& image,
                                                                        const PixelSize& size) {
      steps.push_back("resized to " + std::to_string(size.width) + "x" +
                      std::to_string(size.height));
      return size.height < 30'000 ? resized(image, size)
                                  : Result<Image>(Failure{"picture", "it is too high"});
    };
    platform.images.writePngFiles =
        [this, write = platform.images.writePngFiles](std::span<const PngFile> files) {
          steps.push_back("file " + files.front().path);
          return write(files);
        };
    platform.debugConsole.print = [this](const std::string& line) {
      if (!line.starts_with("Trying")) steps.push_back(line);
    };
    platform.defaults.set = [this, set = platform.defaults.set](Suite suite, const std::string& key,
                                                                const StoreValue& value) {
      steps.push_back(key);
      return full ? Status(Failure{key, "the disk is full"}) : set(suite, key, value);
    };
    platform.widgetCenter.reloadAllTimelines = [this] { steps.emplace_back("reload"); };
  }

  std::vector<imageWidgetData> images() const {
    return GroupStore(platform).loadRecords(families::image);
  }
  void storeImages(std::vector<imageWidgetData> records) {
    for (std::size_t i = 0; i < records.size(); ++i) {
      records[i].imageConfigTag = static_cast<std::int64_t>(i);
      folder.images.insert_or_assign(overlayFileName({static_cast<std::int64_t>(i)}),
                                     test::positionImage(800, 600));
    }
    GroupStore(platform).saveRecords(families::image, records);
    steps.clear();
  }
  void copy(std::int32_t width, std::int32_t height) {
    pasteboard.hasImages = true;
    pasteboard.image = test::positionImage(width, height);
  }
  StyleSetup setup(const EditorTask& task = {}) { return {platform, family, task}; }
  static EditorTask edit(std::int64_t index) { return {EditorMode::edit, {index}}; }

  /// Where the picture lies on a face, if it is there.
  static std::optional<PointRect> box(const DisplayList& list) {
    if (list.empty()) return std::nullopt;
    if (const auto* group = std::get_if<DrawnGroup>(&list.front().content))
      return box(group->items);
    return std::get<DrawnImage>(list.front().content).box;
  }
  std::optional<PointRect> place(std::int64_t size, const std::string& position,
                                 const PointSize& frame = {333, 157.2}) {
    storeImages({{.imageSize = size, .imageShowShadow = false, .imagePosition = position}});
    return box(widgetFace(platform, family, images()[0], frame));
  }
  static void expectNear(const std::optional<PointRect>& box, const PointRect& want,
                         const std::string& what) {
    ASSERT_TRUE(box) << what;
    EXPECT_NEAR(box->x, want.x, 1e-9) << what;
    EXPECT_NEAR(box->y, want.y, 1e-9) << what;
    EXPECT_NEAR(box->width, want.width, 1e-9) << what;
    EXPECT_NEAR(box->height, want.height, 1e-9) << what;
  }

  const StyleFamily& family = styleFamily("image");
  std::vector<std::string> steps;
  bool full = false;
};

TEST_F(ImageFamilyTest, placement_isThatOfTheTable) {
  constexpr double w = 393; // the screen's width; the widget is 333 by 157.2
  for (const auto& [size, side] : {std::pair{0, w * 0.25}, {1, w / 3}, {5, w * 0.25}}) {
    const double x = (333 - side) / 2;
    const double y = (157.2 - side) / 2;
    const double top = (157.2 - side - w / 7) / 2;
    const std::string which = "size " + std::to_string(size) + " ";
    expectNear(place(size, "centre"), {x, y, side, side}, which + "centre");
    expectNear(place(size, "left"), {w / 7, y, side, side}, which + "left");
    expectNear(place(size, "right"), {333 - w / 7 - side, y, side, side}, which + "right");
    expectNear(place(size, "top"), {x, top, side, side}, which + "top");
    expectNear(place(size, "bottom"), {x, top + w / 7, side, side}, which + "bottom");
    EXPECT_FALSE(place(size, "middle")) << which;
  }
}

TEST_F(ImageFamilyTest, smallWidget_hasThePictureOnTheSideThatIsNamed) {
  constexpr PointSize small{158, 158};
  const auto left = place(0, "left", small);
  const auto right = place(0, "right", small);
  ASSERT_TRUE(left && right);
  EXPECT_LT(left->x, 5);
  EXPECT_GT(right->x + right->width, 153);
  EXPECT_LT(place(0, "top", small)->y, 5);
  expectNear(place(0, "centre", small), {(158 - 98.25) / 2, (158 - 98.25) / 2, 98.25, 98.25},
             "centre");
}

TEST_F(ImageFamilyTest, shadow_isSoftAndOnlyWhereTheRecordSaysSo) {
  storeImages({{}, {.imageShowShadow = false}});
  const auto drawn = [&](std::size_t index) {
    return describe(widgetFace(platform, family, images()[index], {158, 158}));
  };
  EXPECT_NE(drawn(0).find("shadow 000000 alpha 0.33 radius 5"), std::string::npos) << drawn(0);
  EXPECT_EQ(drawn(1).find("shadow"), std::string::npos) << drawn(1);
  folder.images.erase(overlayFileName({1}));
  EXPECT_EQ(drawn(1), "") << "no picture, and no program that ends";
}

TEST_F(ImageFamilyTest, emptyClipboard_changesNothing) {
  StyleSetup editor = setup();
  editor.appear();
  const auto face = [&] { return describe(editor.face({333, 157.2})); };
  EXPECT_NE(face().find("\"No Image Set\""), std::string::npos);
  pasteboard.image = test::positionImage(4, 4);
  editor.press(0);
  EXPECT_NE(face().find("\"No Image Set\""), std::string::npos) << "it says that there is none";
  EXPECT_EQ(editor.save(), Saved::refused);
  EXPECT_TRUE(images().empty());
  EXPECT_TRUE(folder.written.empty());
}

TEST_F(ImageFamilyTest, clipboardThatPromisesTooMuch_givesAQuestionMark) {
  std::string drawn;
  platform.drawing.render = [&](std::span<const DisplayList> layers, const PointRect& area,
                                double) -> Result<Image> {
    drawn = describe(layers.front());
    return test::positionImage(static_cast<std::int32_t>(area.width),
                               static_cast<std::int32_t>(area.height));
  };
  pasteboard.hasImages = true;
  StyleSetup editor = setup();
  editor.appear();
  editor.press(0);
  EXPECT_EQ(drawn.substr(0, 21), "symbol \"questionmark\"");
  EXPECT_EQ(editor.save(), Saved::stored);
  EXPECT_EQ(folder.images.at("overlayImage0.png").size(), (PixelSize{800, 800}));
}

TEST_F(ImageFamilyTest, newStyle_isStoredAfterItsFileAndPlacedByTheSecondStep) {
  storeImages(std::vector<imageWidgetData>(11));
  copy(400, 300);
  StyleSetup editor = setup();
  editor.appear();
  editor.press(0);
  editor.setValue(2, false);
  editor.setValue(3, std::int64_t{1});
  steps.clear();
  EXPECT_EQ(editor.save(), Saved::stored);
  EXPECT_EQ(steps, (std::vector<std::string>{"resized to 800x600", "file /group/overlayImage11.png",
                                             "Uploaded: /group/overlayImage11.png",
                                             "savedImageWidgetData", "reload"}));
  EXPECT_EQ(surroundings.felt, std::vector<std::string>{"light impact"});
  EXPECT_EQ(images()[11], (imageWidgetData{.imageConfigTag = 11,
                                           .imageSize = 1,
                                           .imageShowShadow = false,
                                           .imagePosition = "centre",
                                           .imageLinkedConfig = 13}));
  StyleEntry entry(platform, family);
  entry.appear();
  entry.tapCreate();
  EXPECT_EQ(entry.alert()->title, "Cannot Create Image Widget Style");

  const auto second = editor.next();
  second->appear();
  ASSERT_EQ(second->rows().size(), 1U);
  EXPECT_EQ(second->rows()[0].value, FormValue(std::string("centre")));
  EXPECT_FALSE(second->suggesting());
  second->setValue(0, std::string("left"));
  EXPECT_NEAR(box(second->face({333, 157.2}))->x, 393 / 7.0, 1e-9);
  steps.clear();
  EXPECT_EQ(second->save(), Saved::stored);
  EXPECT_EQ(steps,
            (std::vector<std::string>{"savedImageWidgetData", "reload", "imageSelectedConfig"}));
  EXPECT_EQ(images()[11].imagePosition, "left");
  EXPECT_EQ(number("imageSelectedConfig"), 11);
}

TEST_F(ImageFamilyTest, overlays_are800WideAndAsHighAsTheCeiling) {
  const std::pair<PixelSize, int> cases[] = {
      {{400, 300}, 600}, {{3000, 2001}, 534}, {{704, 704}, 800}, {{800, 1}, 1}, {{1601, 1}, 1}};
  for (const auto& [size, height] : cases) {
    EXPECT_TRUE(storeOverlay(platform, test::positionImage(size.width, size.height), {3}));
    EXPECT_EQ(folder.images.at("overlayImage3.png").size(), (PixelSize{800, height}))
        << size.width << " by " << size.height;
  }
}

TEST_F(ImageFamilyTest, editedStyle_keepsItsPlaceUntilTheSecondStep) {
  storeImages({{}, {}, {.imagePosition = "right", .imageLinkedConfig = 4}});
  StyleSetup editor = setup(edit(2));
  editor.appear();
  EXPECT_EQ(editor.draft().picture, folder.images.at("overlayImage2.png"));
  editor.setValue(3, std::int64_t{1});
  copy(100, 100);
  editor.paste();
  EXPECT_EQ(editor.save(), Saved::stored);
  EXPECT_EQ(folder.written, std::vector<std::string>{"overlayImage2.png"});
  EXPECT_EQ(folder.images.at("overlayImage2.png").size(), (PixelSize{800, 800}));
  EXPECT_EQ(
      images()[2],
      (imageWidgetData{
          .imageConfigTag = 2, .imageSize = 1, .imagePosition = "right", .imageLinkedConfig = 4}));
  const auto second = editor.next();
  second->appear();
  EXPECT_EQ(second->rows()[0].value, FormValue(std::string("right")));
  second->setValue(0, std::string("bottom"));
  second->save();
  EXPECT_EQ(images()[2].imagePosition, "bottom");
  editor.appear(); // on the way back
  EXPECT_EQ(editor.draft().picture, folder.images.at("overlayImage2.png"));

  folder.images.erase("overlayImage1.png");
  StyleSetup broken = setup(edit(1));
  EXPECT_DEATH(broken.appear(), "overlayImage1.png");
}

TEST_F(ImageFamilyTest, pictureThatCannotBeKept_leavesNoRecord) {
  StyleSetup editor = setup();
  editor.appear();
  editor.takePicture(test::positionImage(1, 4000));
  EXPECT_EQ(editor.save(), Saved::refused) << "3,200,000 pixels high";
  editor.takePicture(test::positionImage(4, 3));
  folder.refused = {"overlayImage0.png"};
  EXPECT_EQ(editor.save(), Saved::refused);
  EXPECT_TRUE(images().empty());
  EXPECT_EQ(std::ranges::count(steps, "savedImageWidgetData"), 0);
  folder.refused.clear();
  EXPECT_EQ(editor.save(), Saved::stored) << "the picture is still there";
}

TEST_F(ImageFamilyTest, recordThatGetsAnotherIndex_takesItsPictureAlong) {
  StyleSetup editor = setup();
  editor.appear();
  editor.takePicture(test::positionImage(4, 3));
  full = true;
  EXPECT_EQ(editor.save(), Saved::notStored);
  full = false;
  storeImages({{.imageSize = 1}}); // another program has made one
  const Image others = folder.images.at("overlayImage0.png");
  const auto second = editor.next();
  second->appear();
  EXPECT_EQ(second->save(), Saved::stored);
  ASSERT_EQ(images().size(), 2U);
  EXPECT_EQ(folder.images.at("overlayImage0.png"), others);
  EXPECT_EQ(folder.images.at("overlayImage1.png").size(), (PixelSize{800, 600}));
}

TEST_F(ImageFamilyTest, unreadableStore_overwritesNoPicture) {
  storeImages({{}});
  const Image before = folder.images.at("overlayImage0.png");
  defaults.broken = {Suite::group};
  StyleSetup editor = setup();
  editor.appear();
  editor.takePicture(test::positionImage(4, 4));
  EXPECT_EQ(editor.save(), Saved::notStored);
  EXPECT_EQ(folder.images.at("overlayImage0.png"), before);
  defaults.broken.clear();
  const auto second = editor.next();
  second->appear();
  EXPECT_EQ(second->save(), Saved::stored);
  EXPECT_EQ(folder.images.at("overlayImage1.png").size(), (PixelSize{800, 800}));
}

TEST_F(ImageFamilyTest, gallery_tellsHowManyThereAreAndShowsEachOwnPicture) {
  storeImages({{}, {.imageShowShadow = false}});
  folder.images.insert_or_assign("overlayImage1.png", test::positionImage(800, 10));
  StyleGallery gallery(platform, family);
  gallery.appear();
  EXPECT_EQ(steps, std::vector<std::string>{"LENGTH OF ARRAY: 2"});
  const auto tiles = gallery.tiles();
  EXPECT_NE(describe(tiles[0].face).find("image 800 600"), std::string::npos);
  EXPECT_NE(describe(tiles[1].face).find("image 800 10"), std::string::npos);

  setNumber("imageSelectedConfig", 1);
  StylePreview preview(platform, family);
  preview.appear();
  const PointRect widget = preview.widgetBox();
  EXPECT_NEAR(widget.width, 333 / 1.5, 1e-9) << "a medium widget on a page that is smaller";
  EXPECT_NE(describe(preview.face({widget.width, widget.height})).find("image 800 10"),
            std::string::npos);
}

} // namespace
} // namespace vitrelle
