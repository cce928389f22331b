// A picture on its way from another program into an Image widget.
#include "tests/ui/UiTest.h"

#include "core/store/GroupStore.h"
#include "host/imaging/ImageFile.h"
#include "ui/parts/FaceItem.h"
#include "ui/parts/GivenPictures.h"

#include <QBuffer>
#include <QClipboard>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QTemporaryDir>

#include <algorithm>

namespace vitrelle {
namespace {

/// The desktop's own clipboard, and the readers of the platform for what lies outside the folder.
class ImagePageTest : public test::UiTest {
 protected:
  ImagePageTest() {
    setNumber("amountOfConfigs", 1);
    addStyle(0);
    const Images real = host::makeImages(host::HomeFolder(outside.path().toStdString()));
    platform.images.resized = real.resized;
    platform.images.load = [real, inFolder = platform.images.load](const std::string& path) {
      return path.starts_with("/group/") ? inFolder(path) : real.load(path);
    };
    platform = ui::withGivenPictures(platform, [this](const Failure& failure) {
      refusals.push_back(failure.what + ": " + failure.why);
    });
    QGuiApplication::clipboard()->clear();
  }

  std::vector<imageWidgetData> records() {
    return GroupStore(platform).loadRecords(families::image);
  }
  /// A half transparent picture.
  static QImage cutOut(int width, int height) {
    QImage picture(width, height, QImage::Format_ARGB32);
    picture.fill(QColor(200, 40, 20, 128));
    return picture;
  }
  static QByteArray encoded(const QImage& picture, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(picture.save(&buffer, format));
    return bytes;
  }
  static std::unique_ptr<QMimeData> mime(const char* format, const QByteArray& bytes) {
    auto data = std::make_unique<QMimeData>();
    data->setData(QString::fromLatin1(format), bytes);
    return data;
  }
  std::unique_ptr<QMimeData> file(const char* name, const QByteArray& bytes) const {
    const QString path = outside.filePath(QString::fromLatin1(name));
    QFile written(path);
    EXPECT_TRUE(written.open(QIODevice::WriteOnly) && written.write(bytes) == bytes.size());
    auto data = std::make_unique<QMimeData>();
    data->setUrls({QUrl::fromLocalFile(path)});
    return data;
  }
  static void copy(std::unique_ptr<QMimeData> data) {
    QGuiApplication::clipboard()->setMimeData(data.release());
  }
  void drop(std::unique_ptr<QMimeData> data) {
    const QQuickItem* preview = driver->find("previewBackdrop");
    const QPoint at =
        preview->mapToScene(QPointF(preview->width() / 2, preview->height() / 2)).toPoint();
    QDragEnterEvent enter(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(shell->window(), &enter);
    QDropEvent event(at, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(shell->window(), &event);
  }
  void openAt(const char* screen) {
    open({.screen = QString::fromLatin1(screen), .framed = false, .animated = false});
  }
  /// The size of the picture above the form; nothing while no picture is set.
  std::optional<PixelSize> shown(const char* item = "previewFace") {
    const auto face = driver->find(item)->property("face").value<ui::Face>();
    if (face.list == nullptr || face.list->empty()) return std::nullopt;
    const DisplayItem* first = &face.list->front();
    while (const auto* group = std::get_if<DrawnGroup>(&first->content))
      first = &group->items.front();
    const auto* image = std::get_if<DrawnImage>(&first->content);
    return image == nullptr ? std::nullopt : std::optional(image->image.size());
  }

  QTemporaryDir outside;
  std::vector<std::string> refusals;
};

TEST_F(ImagePageTest, style_isPastedPlacedFoundAndEdited) {
  open();
  openFamily("Image");
  driver->click("create");
  waitFor("setupPage");
  driver->click("pressRow");
  EXPECT_FALSE(shown()) << "nothing lies in the clipboard";
  driver->click("saveAndContinue");
  EXPECT_TRUE(driver->isShown("setupPage"));
  EXPECT_FALSE(driver->isShown("notice"));

  copy(mime("image/png", encoded(cutOut(400, 300), "PNG")));
  driver->click("pressRow");
  EXPECT_EQ(shown(), (PixelSize{800, 600}));
  driver->click("Image Size 1");
  driver->click("toggle");
  driver->click("saveAndContinue");
  ASSERT_EQ(records().size(), 1U);
  EXPECT_EQ(records()[0], (imageWidgetData{.imageSize = 1, .imageShowShadow = false}));
  const Bitmap kept = folder.images.at("overlayImage0.png").bitmap().value();
  EXPECT_EQ(kept.size, (PixelSize{800, 600}));
  EXPECT_EQ(std::vector(kept.pixels, kept.pixels + 4),
            (std::vector<std::uint8_t>{200, 40, 20, 128}));

  waitFor("colourPage");
  EXPECT_EQ(accessibleName("menuRow"), "Position Centre");
  driver->click("menuRow");
  waitFor("option2");
  EXPECT_TRUE(driver->find("option2")->hasActiveFocus()) << "where the value is";
  driver->key(Qt::Key_L);
  driver->key(Qt::Key_Return);
  waitForEndOf("option2");
  EXPECT_EQ(accessibleName("menuRow"), "Position Left");
  EXPECT_TRUE(driver->find("menuRow")->hasActiveFocus());
  driver->key(Qt::Key_B);
  EXPECT_EQ(accessibleName("menuRow"), "Position Bottom") << "without the list";
  driver->key(Qt::Key_Down);
  driver->key(Qt::Key_Down);
  EXPECT_EQ(accessibleName("menuRow"), "Position Right") << "and ends there";
  driver->click("saveAndExit");
  waitForEndOf("familySheet");
  EXPECT_EQ(records()[0].imagePosition, "right");
  EXPECT_EQ(number("imageSelectedConfig"), 0);

  driver->click("gallery");
  waitFor("tile0");
  driver->click("tile0", Qt::RightButton);
  driver->click("editEntry");
  waitFor("setupPage");
  EXPECT_EQ(shown(), (PixelSize{800, 600})) << "the stored one";
  driver->click("saveAndContinue");
  waitFor("colourPage");
  EXPECT_EQ(accessibleName("menuRow"), "Position Right");
  driver->click("saveAndExit");
  waitFor("galleryPage");
  driver->click("sheetClose");
  waitForEndOf("familySheet");
  driver->click("preview");
  waitFor("wallpaper0");
  EXPECT_TRUE(refusals.empty());
}

TEST_F(ImagePageTest, ctrlV_takesWhateverPictureIsThere) {
  openAt("CustomImageSetupView");
  waitFor("setupPage");
  const auto paste = [&] {
    driver->key(Qt::Key_V, Qt::ControlModifier);
    return shown();
  };
  copy(mime("text/plain", "words"));
  EXPECT_FALSE(paste());
  copy(file("notes.txt", "words"));
  EXPECT_FALSE(paste()) << "a file, but of no picture";
  EXPECT_TRUE(refusals.empty()) << "and nothing is said";

  copy(mime("image/bmp", encoded(cutOut(100, 50).convertToFormat(QImage::Format_RGB32), "BMP")));
  EXPECT_EQ(paste(), (PixelSize{800, 400}));
  QGuiApplication::clipboard()->setImage(cutOut(10, 20));
  EXPECT_EQ(paste(), (PixelSize{800, 1600})) << "pixels without a format";
  copy(file("photo.jpg", encoded(cutOut(80, 40).convertToFormat(QImage::Format_RGB32), "JPG")));
  EXPECT_EQ(paste(), (PixelSize{800, 400}));
  copy(file("old.ppm", encoded(cutOut(30, 30).convertToFormat(QImage::Format_RGB32), "PPM")));
  EXPECT_EQ(paste(), (PixelSize{800, 800})) << "which Qt alone reads";
  EXPECT_TRUE(refusals.empty());

  QByteArray half = encoded(cutOut(300, 300), "PNG");
  half.truncate(half.size() / 2);
  copy(mime("image/png", half));
  EXPECT_EQ(paste(), (PixelSize{800, 800})) << "a question mark";
  ASSERT_EQ(refusals.size(), 1U);
  EXPECT_EQ(refusals[0].substr(0, 15), "the clipboard: ");
}

TEST_F(ImagePageTest, droppedPicture_countsAsPasted) {
  openAt("CustomImageSetupView");
  waitFor("setupPage");
  drop(file("a.png", encoded(cutOut(200, 100), "PNG")));
  EXPECT_EQ(shown(), (PixelSize{800, 400}));
  drop(file("broken.png", "no picture"));
  EXPECT_TRUE(driver->isShown("notice"));
  EXPECT_EQ(shown(), (PixelSize{800, 400})) << "it stays";
  drop(mime("image/png", encoded(cutOut(100, 100), "PNG")));
  EXPECT_EQ(shown(), (PixelSize{800, 800}));
  waitForEndOf("notice");

  drop(file("thin.png", encoded(cutOut(1, 4000), "PNG")));
  EXPECT_EQ(refusals, std::vector<std::string>{
                          "picture: 800 by 3200000 pixels are more than a picture can have"});
  driver->click("saveAndContinue");
  EXPECT_TRUE(driver->isShown("setupPage"));
  EXPECT_TRUE(records().empty());
}

TEST_F(ImagePageTest, fullDisk_leavesTheEditorAsItIs) {
  openAt("CustomImageSetupView");
  waitFor("setupPage");
  QGuiApplication::clipboard()->setImage(cutOut(10, 10));
  driver->click("pressRow");
  folder.refused = {"overlayImage0.png"};
  driver->click("saveAndContinue");
  EXPECT_TRUE(driver->isShown("setupPage"));
  EXPECT_TRUE(records().empty());
  folder.refused.clear();
  driver->click("saveAndContinue");
  waitFor("colourPage");
  EXPECT_EQ(records().size(), 1U);
}

} // namespace
} // namespace vitrelle
