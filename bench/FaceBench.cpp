// FaceBench [FILE...]: faces beside plain Qt doing the same drawing, and the Text family's pages
// over styles made of the given screenshots, if any: the gallery of twelve from its opening to its
// last picture, beside the same grid in plain QML, and a keystroke to the redrawn preview.
#include "bench/Timing.h"
#include "core/families/text/CustomTextPreviewView.h"
#include "core/slicing/ImageCropper.h"
#include "core/store/GroupStore.h"
#include "core/store/Keys.h"
#include "host/Host.h"
#include "host/desktop/QtLoop.h"
#include "host/drawing/DrawingProcess.h"
#include "ui/Shell.h"
#include "ui/Words.h"
#include "ui/lifecycle/EditorScreen.h"
#include "ui/lifecycle/FamilyScreen.h"
#include "ui/parts/StoredPicture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGraphicsDropShadowEffect>
#include <QGraphicsScene>
#include <QGraphicsTextItem>
#include <QPainter>
#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QSGRendererInterface>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTextOption>

#include <cstdio>
#include <vector>

namespace {

using namespace vitrelle;

constexpr int styles = 12;
constexpr int rounds = 15;
constexpr const char* words = "Good morning, sunshine";

double milliseconds(const QElapsedTimer& clock) {
  return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

QFont interFace(double pixels) {
  QFont font(QStringLiteral("Inter"));
  font.setHintingPreference(QFont::PreferNoHinting);
  font.setPixelSize(static_cast<int>(pixels));
  return font;
}

void drawOurs(const Platform& platform, bool shadow, const PointSize& frame, double scale) {
  const View view =
      CustomTextPreviewView{.text = words, .fontName = "", .textSize = 24, .showShadow = shadow}
          .view();
  const DisplayList list = layOut(view, frame, platform.drawing);
  const auto image = platform.drawing.render({&list, 1}, {0, 0, frame.width, frame.height}, scale);
  if (!image) std::exit(1);
}

/// The same words in the middle of a transparent picture, drawn by the painter.
void drawPlain(const PointSize& frame, double scale) {
  QImage image(QSizeF(frame.width * scale, frame.height * scale).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(interFace(24 * scale));
  painter.setPen(Qt::white);
  painter.drawText(image.rect(), Qt::AlignCenter | Qt::TextWordWrap, QString::fromLatin1(words));
}

/// With the shadow that Qt's own effect makes.
void drawPlainShadowed(const PointSize& frame, double scale) {
  QGraphicsScene scene;
  auto* item = new QGraphicsTextItem;
  item->setFont(interFace(24 * scale));
  item->setDefaultTextColor(Qt::white);
  item->setTextWidth(frame.width * scale);
  QTextOption centred(Qt::AlignCenter);
  item->document()->setDefaultTextOption(centred);
  item->setPlainText(QString::fromLatin1(words));
  auto* effect = new QGraphicsDropShadowEffect;
  effect->setOffset(0, 0);
  effect->setBlurRadius(4 * 5 * scale); // reaches as far as a deviation of 5 points
  effect->setColor(QColor(0, 0, 0, 84));
  item->setGraphicsEffect(effect);
  scene.addItem(item);
  QImage image(QSizeF(frame.width * scale, frame.height * scale).toSize(),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  scene.render(&painter, image.rect(), image.rect());
}

Platform platformOver(const QString& home) {
  Platform platform = host::makePlatform(
      {.home = host::HomeFolder(home.toStdString()), .phone = {}, .verbose = false},
      host::makeQtLoop());
  host::useDrawing(platform);
  return platform;
}

void makeStyles(const Platform& platform, const QStringList& screenshots) {
  for (int style = 0; style < screenshots.size(); ++style) {
    const auto image = platform.images.load(screenshots[style].toStdString());
    if (!image) std::exit(1);
    ImageCropper(platform).store(*image, lightStyle, style);
    ImageCropper(platform).store(*image, darkStyle, style);
  }
  const GroupStore store(platform);
  store.set(keys::amountOfConfigs, static_cast<std::int64_t>(screenshots.size()));
  store.set(keys::lastUsedAppVersion, *platform.bundle.shortVersion());
}

/// So many styles of a family, linked to the wallpapers as far as those go.
template <class Record>
void storeRecords(const Platform& platform, const Family<Record>& family, const Record& like,
                  int count, std::int64_t wallpapers) {
  std::vector<Record> records(static_cast<std::size_t>(count), like);
  for (int i = 0; i < count; ++i) {
    records[static_cast<std::size_t>(i)].*family.tag = i;
    records[static_cast<std::size_t>(i)].*family.linked = i < wallpapers ? i : noLinkedConfig;
  }
  GroupStore(platform).saveRecords(family, records);
}

void storeTexts(const Platform& platform, int count, std::int64_t wallpapers) {
  storeRecords(platform, families::text, textWidgetData{.textWidgetText = words}, count,
               wallpapers);
}

QQuickItem* find(QQuickItem* item, const QString& objectName) {
  if (item->objectName() == objectName) return item;
  for (QQuickItem* child : item->childItems()) {
    if (QQuickItem* found = find(child, objectName)) return found;
  }
  return nullptr;
}

int readyPictures(const QQuickItem* item) {
  const auto* picture = qobject_cast<const ui::StoredPicture*>(item);
  int count = picture != nullptr && picture->isReady() ? 1 : 0;
  for (const QQuickItem* child : item->childItems())
    count += readyPictures(child);
  return count;
}

/// Runs the loop until a frame is on the screen in which it is so; how long that took.
template <class IsSo>
double untilFrame(QQuickWindow* window, IsSo isSo) {
  QElapsedTimer clock;
  clock.start();
  QEventLoop loop;
  double took = -1;
  const auto watch = QObject::connect(window, &QQuickWindow::frameSwapped, &loop, [&] {
    if (!isSo()) return window->update();
    took = milliseconds(clock);
    loop.quit();
  });
  window->update();
  loop.exec();
  QObject::disconnect(watch);
  return took;
}

/// Opens an entry screen and its gallery, until that is drawn with its pictures.
double openGallery(ui::Shell& shell) {
  QQuickItem* content = shell.window()->contentItem();
  untilFrame(shell.window(), [] { return true; });
  auto* family =
      find(content, QStringLiteral("familyPage"))->property("family").value<ui::FamilyScreen*>();
  const int before = readyPictures(content);
  family->tapGallery();
  return untilFrame(shell.window(), [&] { return readyPictures(content) >= before + styles; });
}

double measureClockGallery(const Platform& platform, int wallpapers) {
  storeRecords(platform, families::clock,
               clockWidgetData{.clockWidgetDateEnabled = true, .clockWidgetAnalogComplexity = 2},
               styles, wallpapers);
  ui::Shell shell(platform,
                  {.screen = QStringLiteral("ModernTimeView"), .framed = false, .animated = false});
  if (!shell.open()) std::exit(1);
  return openGallery(shell);
}

struct Pages {
  double gallery;
  double keystroke;
};

Pages measurePages(const Platform& platform, int wallpapers) {
  storeTexts(platform, styles, wallpapers);
  ui::Shell shell(
      platform,
      {.screen = QStringLiteral("ModernCustomTextView"), .framed = false, .animated = false});
  if (!shell.open()) std::exit(1);
  const double gallery = openGallery(shell);
  QQuickItem* content = shell.window()->contentItem();
  auto* family =
      find(content, QStringLiteral("familyPage"))->property("family").value<ui::FamilyScreen*>();
  storeTexts(platform, 1, wallpapers); // twelve leave no room for the new one
  family->dismissSheet();
  family->tapCreate();
  untilFrame(shell.window(), [&] { return find(content, QStringLiteral("textField")) != nullptr; });
  auto* editor =
      find(content, QStringLiteral("setupPage"))->property("screen").value<ui::EditorScreen*>();
  std::vector<double> times;
  for (int i = 1; i < 20; ++i) {
    editor->form()->setValue(0, QString::fromLatin1(words).left(i));
    times.push_back(untilFrame(shell.window(), [] { return true; }));
  }
  std::sort(times.begin(), times.end());
  return {gallery, times[times.size() / 2]};
}

/// A tile's words, and a clock with its dial and hours, in plain QML.
constexpr const char* plainWords = R"(
                    Text {
                        anchors.centerIn: parent
                        width: 141
                        wrapMode: Text.Wrap
                        color: "white"
                        font.family: "Inter"
                        font.pixelSize: 18
                        text: "Good morning, sunshine"
                    })";
constexpr const char* plainClock = R"(
                    Rectangle {
                        anchors.centerIn: parent
                        width: 110; height: 110; radius: 55
                        color: "transparent"
                        border { width: 4; color: "white" }
                        Repeater {
                            model: 14
                            Item {
                                required property int index
                                anchors.centerIn: parent
                                width: 100; height: 100
                                rotation: index * 30
                                Rectangle {
                                    anchors.horizontalCenter: parent.horizontalCenter
                                    y: parent.index < 12 ? 0 : 20
                                    width: 2; height: parent.index < 12 ? 15 : 30
                                    antialiasing: true
                                }
                            }
                        }
                    }
                    Text {
                        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom }
                        color: "white"
                        font.family: "Inter"
                        font.pixelSize: 16
                        text: "11/21/26"
                    })";

/// The same grid in plain QML, whose pictures come from the same files.
double measurePlainGallery(const QString& folder, int screenshots, const char* tile) {
  QQmlApplicationEngine engine;
  engine.loadData(QStringLiteral(R"(
import QtQuick
Window {
    id: window
    property bool shown: false
    property int ready: 0
    width: 393; height: 852; visible: true
    Loader {
        active: window.shown
        sourceComponent: Grid {
            columns: 2
            spacing: 21.8
            Repeater {
                model: %1
                Image {
                    required property int index
                    width: 157.2; height: 157.2
                    sourceSize: Qt.size(158, 158)
                    asynchronous: true
                    cache: false
                    source: "file://%2/" + (index < %3 ? index : 0) + "topLeftSmall.png"
                    onStatusChanged: if (status === Image.Ready) ++window.ready
                    %4
                }
            }
        }
    }
}
)")
                      .arg(styles)
                      .arg(folder)
                      .arg(screenshots)
                      .arg(QString::fromLatin1(tile))
                      .toUtf8());
  auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
  untilFrame(window, [] { return true; });
  window->setProperty("shown", true);
  return untilFrame(window, [&] { return window->property("ready").toInt() == styles; });
}

double median(std::vector<double> times) {
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
  std::setvbuf(stdout, nullptr, _IOLBF, 0);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  QQuickStyle::setStyle(QStringLiteral("Basic"));
  const QApplication application(argc, argv);
  QTranslator translator;
  ui::installWords(translator, QLocale::c());
  const QTemporaryDir home;
  const Platform platform = platformOver(home.path());

  constexpr PointSize frame{158, 158};
  const auto faces = bench::medians(
      41, {[&] { drawOurs(platform, true, frame, 3); }, [&] { drawPlainShadowed(frame, 3); },
           [&] { drawOurs(platform, false, frame, 3); }, [&] { drawPlain(frame, 3); }});
  std::printf("face at 3x with its shadow %.2f ms, plain Qt %.2f ms, %.2f times as fast\n",
              faces[0], faces[1], faces[1] / faces[0]);
  std::printf("face at 3x without %.2f ms, plain Qt %.2f ms, %.2f times as fast\n", faces[2],
              faces[3], faces[3] / faces[2]);

  const QStringList screenshots = QCoreApplication::arguments().mid(1);
  if (screenshots.isEmpty()) return 0;
  makeStyles(platform, screenshots);
  const QString folder = QString::fromStdString(*platform.files.groupContainer());
  const auto wallpapers = static_cast<int>(screenshots.size());
  std::vector<double> galleries;
  std::vector<double> plain;
  std::vector<double> clocks;
  std::vector<double> plainClocks;
  std::vector<double> keystrokes;
  for (int round = 0; round < rounds; ++round) {
    const Pages pages = measurePages(platform, wallpapers);
    galleries.push_back(pages.gallery);
    keystrokes.push_back(pages.keystroke);
    plain.push_back(measurePlainGallery(folder, wallpapers, plainWords));
    clocks.push_back(measureClockGallery(platform, wallpapers));
    plainClocks.push_back(measurePlainGallery(folder, wallpapers, plainClock));
  }
  std::printf("gallery of %d tiles %.1f ms, plain QML %.1f ms, ratio %.2f\n", styles,
              median(galleries), median(plain), median(galleries) / median(plain));
  std::printf("gallery of %d clocks %.1f ms, plain QML %.1f ms, ratio %.2f\n", styles,
              median(clocks), median(plainClocks), median(clocks) / median(plainClocks));
  std::printf("keystroke to the redrawn preview %.1f ms\n", median(keystrokes));
}
