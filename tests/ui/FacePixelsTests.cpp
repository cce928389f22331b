// The application and the command line draw the same pixels.
#include "tests/ui/UiTest.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace vitrelle {
namespace {

constexpr char record[] =
    R"([{"id":0,"textConfigTag":0,"textWidgetText":"Hello, שלום 🎉","textWidgetFont":"Inter-BoldItalic",)"
    R"("textWidgetSize":31,"textWidgetShadow":true,"textWidgetTextColour":"FFD60A","textLinkedConfig":13}])";
const QColor ground(51, 102, 153);

class FacePixelsTest : public testing::Test {
 protected:
  void run(const char* program, const QStringList& arguments) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QString::fromLocal8Bit(program),
                  QStringList{QStringLiteral("--home"), home.path()} + arguments);
    ASSERT_TRUE(process.waitForFinished(120000));
    ASSERT_EQ(process.exitCode(), 0) << process.readAll().toStdString();
  }
  QString path(const char* name) const { return home.filePath(QString::fromLatin1(name)); }

  QTemporaryDir home;
};

/// The part of the picture that is not of one colour.
QRect inkOf(const QImage& picture, QRgb of) {
  QRect ink;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (picture.pixel(x, y) != of) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

TEST_F(FacePixelsTest, applicationAndCommandLine_agreeAtEveryScale) {
  QImage wallpaper(1179, 2556, QImage::Format_RGB32);
  wallpaper.fill(ground);
  ASSERT_TRUE(wallpaper.save(path("wallpaper.png")));
  const QStringList both{QStringLiteral("--light"), path("wallpaper.png"), QStringLiteral("--dark"),
                         path("wallpaper.png")};
  run(VITRELLE_PROGRAM, QStringList{QStringLiteral("style"), QStringLiteral("new")} + both);
  run(VITRELLE_PROGRAM,
      {QStringLiteral("defaults"), QStringLiteral("write"), QStringLiteral("savedTextWidgetData"),
       QStringLiteral("-data"), QString::fromLatin1(QByteArray(record).toHex())});

  for (const int scale : {1, 2, 3}) {
    SCOPED_TRACE(scale);
    const QString told = QString::number(scale);
    run(VITRELLE_APP,
        {QStringLiteral("--screen"), QStringLiteral("ModernCustomTextColourView"),
         QStringLiteral("--scale"), told, QStringLiteral("--screenshot"), path("screen.png")});
    run(VITRELLE_PROGRAM,
        {QStringLiteral("face"), QStringLiteral("text"), QStringLiteral("--record"),
         QStringLiteral("0"), QStringLiteral("--frame"), QStringLiteral("333x157.2"),
         QStringLiteral("--background"), ground.name().mid(1), QStringLiteral("--scale"), told,
         path("face.png")});
    const QImage screen = QImage(path("screen.png")).convertToFormat(QImage::Format_RGB32);
    // Without the last row of pixels, which the frame ends in the midst of.
    const QImage face = QImage(path("face.png"))
                            .convertToFormat(QImage::Format_RGB32)
                            .copy(0, 0, 333 * scale, 157 * scale);
    const QRect ink = inkOf(face, ground.rgb());
    ASSERT_GT(ink.width(), 150 * scale);
    const QImage words = face.copy(ink);
    // The preview's left edge is known; how far below the title it begins is the page's own affair.
    const int left = 30 * scale + ink.left();
    bool found = false;
    for (int y = 0; y + ink.height() <= screen.height() && !found; ++y)
      found = screen.copy(left, y, ink.width(), ink.height()) == words;
    EXPECT_TRUE(found);
  }
}

} // namespace
} // namespace vitrelle
